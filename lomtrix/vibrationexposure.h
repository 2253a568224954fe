// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QVector>

#include <array>

/// The vibration that a person takes up in a day of several parts, each measured for a shorter time than it lasts.
/// Accelerations in m/s², doses in m/s^1.75, times in seconds. Nothing is rounded.
namespace VibrationExposure {

constexpr double Reference = 8 * 3600; ///< the working day that exposures are normalised to

using Axes = std::array<double, 3>; ///< X, Y and Z

/// The dose of an exposure that goes on for \a exposure, from the dose \a measured in \a duration (above 0); \a factor
/// weighs its axis.
double dose(double measured, double factor, double exposure, double duration);

/// A part of a day.
struct Component {
    double acceleration = 0; ///< over the axes, weighted
    double exposure = 0;
    Axes dose = {};          ///< of the exposure time
    Axes crest = {};         ///< crest factors
};

struct Day {
    double sum = 0;           ///< of the squared accelerations times their exposure, m²/s³
    Axes dose = {};
    double resultantDose = 0; ///< the fourth root over all axes, not a sum of vectors
    double crest = 0;         ///< highest of all parts and axes

    /// The acceleration that would come to the same if it lasted \a seconds; infinite, or no number, for 0.
    double acceleration(double seconds) const;
};

Day day(const QVector<Component> &components);

} // namespace VibrationExposure
