// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "soundlevel/soundlevelconfig.h"

/// The time weighting is asked for again behind the writing: this meter may say OK and keep another one.
class NembraPlusConfig : public SoundLevelConfig
{
    Q_OBJECT

public:
    static constexpr QLatin1String Product{"NEMBRA+"};

    NembraPlusConfig() : SoundLevelConfig(Product) {}

    static const Settings<SoundLevelConfig> &settings();
};
