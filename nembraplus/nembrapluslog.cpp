// SPDX-License-Identifier: GPL-3.0-or-later
#include "nembraplus/nembrapluslog.h"

const Fields<NembraPlusLog> &NembraPlusLog::fields()
{
    using L = NembraPlusLog;
    static const Fields<L> rows = {
        {"date", InRecord, 3, &L::m_registerDate},
        {"level", InRecord, 5, &L::m_level, Form::Dashed},
        {"interval", InRecord, 6, &L::m_interval, Form::IfThere},
    };
    return rows;
}
