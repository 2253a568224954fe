// SPDX-License-Identifier: GPL-3.0-or-later
#include "thalvex2/thalvex2results.h"

const Fields<Thalvex2Results> &Thalvex2Results::fields()
{
    using R = Thalvex2Results;
    static const Fields<R> rows = {
        {"sampleTime", 1, 2, &R::m_sampleTime},
        {"pauseTime", 1, 3, &R::m_pauseTime, Form::Clock},
        {"duration", 1, 4, &R::m_duration, Form::Clock},
        {"unity", 1, 5, &R::m_unity, Form::Degree},
        {"IBUTGiMed", 2, 2, &R::m_IBUTGiMed},
        {"IBUTGeMed", 2, 3, &R::m_IBUTGeMed},
        {"startTime", 2, 4, &R::m_startTime},
        {"stopTime", 2, 6, &R::m_stopTime},
        {"wetTMax", 3, 2, &R::m_wetTMax}, // on the wire wet comes before dry, in listings after it
        {"wetTMin", 3, 3, &R::m_wetTMin},
        {"dryTMax", 3, 4, &R::m_dryTMax},
        {"dryTMin", 3, 5, &R::m_dryTMin},
        {"globeTMax", 3, 6, &R::m_globeTMax},
        {"globeTMin", 3, 7, &R::m_globeTMin},
    };
    return rows;
}
