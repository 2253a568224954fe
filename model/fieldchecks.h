// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "model/field.h"

#include <optional>

/// The checks of a noise instrument with a sound calibrator, before and after a measurement.
struct FieldChecks {
    QString pre;       ///< dB, or "---" when there was no check
    QString pos;       ///< the same, after the measurement
    QDateTime preDate; ///< not valid when there was no check
    QDateTime posDate;

    /// The word of a family stands in place of the "%": "preChk", "preCalDate".
    static const Fields<FieldChecks> &fields();

    /// Reads header \a number: 0, or -1 with fewer than 8 pieces or another number in front.
    [[nodiscard]] int parse(int number, const QByteArray &answer);
    /// How much the first lies above the second, in dB; nothing without both.
    std::optional<double> deviation() const;
};
