// SPDX-License-Identifier: GPL-3.0-or-later
#include "zelk/zelkconfig.h"

const Settings<ZelkConfig> &ZelkConfig::settings()
{
    static const Settings<ZelkConfig> rows = {
        {"VFINTVL", "sampleTime", &ZelkConfig::m_sampleTime, SettingForm::MinuteSecond},
    };
    return rows;
}
