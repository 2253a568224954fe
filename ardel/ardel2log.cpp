// SPDX-License-Identifier: GPL-3.0-or-later
#include "ardel/ardel2log.h"

const Fields<Ardel2Log> &Ardel2Log::fields()
{
    using L = Ardel2Log;
    static const Fields<L> rows = {
        {"date", InRecord, 3, &L::m_registerDate},
        {"lavgDosimeter1", InRecord, 5, &L::m_lavgDosimeter1, Form::Dashed},
        {"lavgDosimeter2", InRecord, 6, &L::m_lavgDosimeter2, Form::Dashed},
        {"lavgDosimeter3", InRecord, 7, &L::m_lavgDosimeter3, Form::Dashed},
        {"level", InRecord, 8, &L::m_level, Form::Dashed},
    };
    return rows;
}
