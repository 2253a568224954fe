// SPDX-License-Identifier: GPL-3.0-or-later
#include "thalvex2/thalvex2log.h"

const Fields<Thalvex2Log> &Thalvex2Log::fields()
{
    using L = Thalvex2Log;
    static const Fields<L> rows = {
        {"date", InRecord, 3, &L::m_registerDate},
        {"wetTemperature", InRecord, 5, &L::m_wetTemperature},
        {"dryTemperature", InRecord, 6, &L::m_dryTemperature},
        {"globeTemperature", InRecord, 7, &L::m_globeTemperature},
        {"IBUTGi", InRecord, 8, &L::m_IBUTGi},
        {"IBUTGe", InRecord, 9, &L::m_IBUTGe},
    };
    return rows;
}
