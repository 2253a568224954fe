// SPDX-License-Identifier: GPL-3.0-or-later
#include "lomtrix/lomtrixlog.h"

const Fields<LomtrixLog> &LomtrixLog::fields()
{
    using L = LomtrixLog;
    static const Fields<L> rows = {
        {"date", InRecord, 3, &L::m_registerDate},
        {"interval", InRecord, 5, &L::m_interval, Form::Dashed},
        {"awX", InRecord, 6, &L::m_awX, Form::Dashed},
        {"awY", InRecord, 7, &L::m_awY, Form::Dashed},
        {"awZ", InRecord, 8, &L::m_awZ, Form::Dashed},
        {"vdvX", InRecord, 12, &L::m_vdvX, Form::Dashed}, // on the wire crest factors come before doses
        {"vdvY", InRecord, 13, &L::m_vdvY, Form::Dashed},
        {"vdvZ", InRecord, 14, &L::m_vdvZ, Form::Dashed},
        {"fcX", InRecord, 9, &L::m_fcX, Form::Dashed},
        {"fcY", InRecord, 10, &L::m_fcY, Form::Dashed},
        {"fcZ", InRecord, 11, &L::m_fcZ, Form::Dashed},
        {"amr", InRecord, 15, &L::m_amr, Form::Dashed},
    };
    return rows;
}
