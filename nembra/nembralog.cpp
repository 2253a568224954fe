// SPDX-License-Identifier: GPL-3.0-or-later
#include "nembra/nembralog.h"

const Fields<NembraLog> &NembraLog::fields()
{
    using L = NembraLog;
    static const Fields<L> rows = {
        {"date", InRecord, 3, &L::m_registerDate},
        {"level", InRecord, 5, &L::m_level, Form::Dashed},
    };
    return rows;
}
