// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "simulator/course.h"

/// What the sensors of one unit show at one moment, in tenths of the unit of measurement (°C or °F, and m/s).
struct HeatSample {
    int wet = 0;
    int dry = 0;
    int globe = 0;
    int indoor = 0;  ///< WBGT without solar load: 0.7 wet + 0.3 globe
    int outdoor = 0; ///< WBGT with solar load: 0.7 wet + 0.2 globe + 0.1 dry
    int air = 0;     ///< air velocity
    bool tilted = false;
};

/// The heat at a workplace through day and night: a cool morning, a hot afternoon, clouds, and sensors that need
/// minutes to come from the room's temperature to that of the place. A function of the seed, the unit's place and the
/// time alone.
class Climate
{
public:
    Climate(quint32 seed, int place);

    /// `clock`: seconds since any midnight; `measuring`: seconds since the sensors were switched on.
    [[nodiscard]] HeatSample at(qint64 clock, qint64 measuring, char unit) const;

private:
    Chance m_chance;
    int m_place;
};
