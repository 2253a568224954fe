// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "soundlevel/soundlevelconfig.h"

class NembraConfig : public SoundLevelConfig
{
    Q_OBJECT

public:
    static constexpr QLatin1String Product{"NEMBRA"};

    NembraConfig() : SoundLevelConfig(Product) {}
};
