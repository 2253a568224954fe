// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "model/field.h"

/// What one column of an experiment's values is.
struct PhysicalQuantityDescriptor {
    QString name;  ///< the instrument's code: "TEMP"
    QString unity; ///< unit as sent, may be empty

    /// The name for the user, "Invalid" for a code that is not known.
    QString nameTr() const;

    static const Fields<PhysicalQuantityDescriptor> &fields();
};
