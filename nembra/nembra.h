// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "nembra/nembraconfig.h"
#include "nembra/nembraresults.h"
#include "soundlevel/soundlevelmeter.h"

/// The sound level meter of one frequency weighting and one time weighting at a time.
class Nembra : public SoundLevelMeter<NembraConfig, NembraResults>
{
    Q_OBJECT

public:
    static constexpr QLatin1String Name = NembraConfig::Product;

    using SoundLevelMeter::SoundLevelMeter;
};
