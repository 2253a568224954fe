// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "model/field.h"

#include <QVariant>

/// One item that a sensor module adds to what an experiment says of its configuration or its evaluation.
struct ZelkExpData {
    QString label;      ///< the instrument's code: "LAMP"
    QString type;       ///< "s": a text, "f": a number
    QVariant dataValue; ///< a double of type "f", else a QString; not valid where no number came in a number's place
    QString unity;      ///< unit as sent, may be empty

    /// The label for the user, "Invalid" for a code that is not known.
    QString labelTr() const;
    /// A text value for the user: its translation when it is a code that is known, else as it stands.
    QString valueTr() const;

    static const Fields<ZelkExpData> &fields();
};
