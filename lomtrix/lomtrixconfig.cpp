// SPDX-License-Identifier: GPL-3.0-or-later
#include "lomtrix/lomtrixconfig.h"

const Settings<LomtrixConfig> &LomtrixConfig::settings()
{
    using C = LomtrixConfig;
    static const Settings<C> rows = {{"VFINTVL", "sampleTime", &C::m_sampleTime, SettingForm::MinuteSecond}};
    return rows;
}
