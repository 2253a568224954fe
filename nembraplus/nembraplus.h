// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "nembraplus/nembraplusconfig.h"
#include "nembraplus/nembraplusresults.h"
#include "soundlevel/soundlevelmeter.h"

/// The sound level meter of all three frequency weightings and all three time weightings at once.
class NembraPlus : public SoundLevelMeter<NembraPlusConfig, NembraPlusResults>
{
    Q_OBJECT

public:
    static constexpr QLatin1String Name = NembraPlusConfig::Product;

    using SoundLevelMeter::SoundLevelMeter;
};
