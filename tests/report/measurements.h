// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "model/experiment.h"

#include <memory>

/// Measurements to print, made of the records that instruments send.
namespace Measurements {

/// How a measurement went. The hour is that of an instrument in Sao Paulo.
struct Course {
    int samples = 60;
    QDateTime start{QDate(2019, 10, 9), QTime(9, 37, 1), Qt::OffsetFromUTC, -3 * 3600};
    int interval = 60; ///< seconds
    QByteArray unit = "C";
    QByteArray text = {}; ///< in place of each value, when not empty
    int expansions = 0;
};

/// A smooth day with the five values of one place.
ExperimentChain thalvex2(const Course &course);

/// The same at 1 + expansions places, each half a degree warmer than the one before.
ExperimentChain thalvex4(const Course &course);

} // namespace Measurements
