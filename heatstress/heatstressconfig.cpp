// SPDX-License-Identifier: GPL-3.0-or-later
#include "heatstress/heatstressconfig.h"

const Settings<HeatStressConfig> &HeatStressConfig::settings()
{
    using C = HeatStressConfig;
    static const Settings<C> rows = {
        {"VFUNIT", "unity", &C::m_unity, SettingForm::Degree},
        {"VFINTVL", "sampleTime", &C::m_sampleTime, SettingForm::MinuteSecond},
    };
    return rows;
}
