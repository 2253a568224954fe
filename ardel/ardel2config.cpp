// SPDX-License-Identifier: GPL-3.0-or-later
#include "ardel/ardel2config.h"

const Settings<Ardel2Config> &Ardel2Config::settings()
{
    using C = Ardel2Config;
    using Form = SettingForm;
    static const Settings<C> rows = {
        {"VFTRHLVL", "actionLevel", &C::m_actionLevel, Form::Whole},
        {"VFCRTLVL", "criterionLevel", &C::m_criterionLevel, Form::Whole},
        {"VFXCHRAT", "exchangeRate", &C::m_exchangeRate, Form::Whole},
        {"VFFQWGHT", "frequencyWeighting", &C::m_frequencyWeighting},
        {"VFTMWGHT", "timeWeighting", &C::m_timeWeighting},
        {"VFOCTAVE", "octaveAnalysis", &C::m_octaveAnalysis, Form::Quoted, OctaveBit},
        {"VFXPDUR", "experimentDuration", &C::m_experimentDuration, Form::HourMinute},
        {nullptr, "scheduleStatus", &C::m_scheduleStatus}, // has a command of another kind
    };
    return rows;
}
