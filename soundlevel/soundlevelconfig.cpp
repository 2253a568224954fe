// SPDX-License-Identifier: GPL-3.0-or-later
#include "soundlevel/soundlevelconfig.h"

Settings<SoundLevelConfig> SoundLevelConfig::table(bool timeWeightingIsReadBack)
{
    using C = SoundLevelConfig;
    const SettingForm quoted = SettingForm::Quoted;
    return {
        {"VFFQWGHT", "frequencyWeighting", &C::m_frequencyWeighting},
        {"VFTMWGHT", "timeWeighting", &C::m_timeWeighting, quoted, 0, timeWeightingIsReadBack},
        {"VFOCTAVE", "octaveAnalysis", &C::m_octaveAnalysis},
    };
}

const Settings<SoundLevelConfig> &SoundLevelConfig::settings()
{
    static const Settings<SoundLevelConfig> rows = table(false);
    return rows;
}
