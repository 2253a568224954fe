// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

/// What a measured noise dose means for a working day. Doses are in percent, levels and exchange rates in dB, times in
/// seconds. Nothing is guarded: without a duration the results are infinite or undefined.
namespace Dose {

constexpr double ReferenceDay = 8 * 3600; ///< to which exposure levels refer

/// The dose of a working day on which the noise goes on as it was measured.
double daily(double dose, double workingTime, double duration);

/// The level that gives the measured dose rate over a reference day (EL). \a dose is above 0.
double exposureLevel(double dose, double duration, double criterionLevel, double exchangeRate);

/// \a exposureLevel shifted to the working day by the exchange rate's own slope (NEL).
double normalizedExposureLevel(double exposureLevel, double workingTime, double exchangeRate);

} // namespace Dose
