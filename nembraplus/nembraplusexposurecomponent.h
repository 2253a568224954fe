// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "soundlevel/soundlevelexposurecomponent.h"

/// This meter has no level outside of its weightings: behind a download both levels are empty.
class NembraPlusExposureComponent : public SoundLevelExposureComponent
{
    Q_OBJECT

public:
    using SoundLevelExposureComponent::SoundLevelExposureComponent;
};
