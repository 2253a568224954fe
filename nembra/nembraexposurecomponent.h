// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "soundlevel/soundlevelexposurecomponent.h"

class NembraExposureComponent : public SoundLevelExposureComponent
{
    Q_OBJECT

public:
    using SoundLevelExposureComponent::SoundLevelExposureComponent;
};
