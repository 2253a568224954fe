// SPDX-License-Identifier: GPL-3.0-or-later
#include "ardel/dose.h"

#include <cmath>

namespace {

// Both stand as the instruments have them, so that report and display agree to the last digit.
constexpr double Log10Of2 = 0.30103F;
constexpr double LnOf10 = 2.302585092994046;

/// How many dB \a ratio is worth where \a exchangeRate of them double the dose.
double levelOf(double ratio, double exchangeRate)
{
    return exchangeRate / Log10Of2 * (std::log(ratio) / LnOf10);
}

} // namespace

double Dose::daily(double dose, double workingTime, double duration)
{
    return dose * workingTime / duration;
}

double Dose::exposureLevel(double dose, double duration, double criterionLevel, double exchangeRate)
{
    return criterionLevel + levelOf(ReferenceDay / duration * (dose / 100), exchangeRate);
}

double Dose::normalizedExposureLevel(double exposureLevel, double workingTime, double exchangeRate)
{
    return exposureLevel + levelOf(workingTime / ReferenceDay, exchangeRate);
}
