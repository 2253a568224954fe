// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "model/field.h"

/// What one unit measured at one moment, as the instrument sent it, temperatures in the unit of the measurement.
struct EnvironmentalFactors {
    QString wetTemperature;
    QString dryTemperature;
    QString globeTemperature;
    QString WBGTi;       ///< without solar load
    QString WBGTo;       ///< with solar load
    QString airVelocity; ///< m/s
    int waterLevel = 0;
    int tiltStatus = 0;

    /// Their places in a record are counted from the first field of the unit.
    static const Fields<EnvironmentalFactors> &fields();
};
