// SPDX-License-Identifier: GPL-3.0-or-later
#include "lomtrix/vibrationexposure.h"

#include <algorithm>
#include <cmath>
#include <numeric>

namespace VibrationExposure {

double dose(double measured, double factor, double exposure, double duration)
{
    return measured * factor * std::pow(exposure / duration, 0.25);
}

double Day::acceleration(double seconds) const
{
    return std::sqrt(sum / seconds);
}

Day day(const QVector<Component> &components)
{
    Day day;
    Axes fourthPowers = {};
    for (const Component &component : components) {
        for (std::size_t axis = 0; axis < fourthPowers.size(); ++axis) {
            fourthPowers[axis] += std::pow(component.dose[axis], 4);
            day.crest = std::max(day.crest, component.crest[axis]);
        }
        day.sum += component.acceleration * component.acceleration * component.exposure;
    }
    std::transform(fourthPowers.begin(), fourthPowers.end(), day.dose.begin(),
                   [](double power) { return std::pow(power, 0.25); });
    day.resultantDose = std::pow(std::accumulate(fourthPowers.begin(), fourthPowers.end(), 0.0), 0.25);
    return day;
}

} // namespace VibrationExposure
