// SPDX-License-Identifier: GPL-3.0-or-later
#include "thalvex4/thalvex4log.h"

#include "thalvex4/thalvex4.h"

const Fields<EnvironmentalFactors> &EnvironmentalFactors::fields()
{
    using E = EnvironmentalFactors;
    static const Fields<E> rows = {
        {"wetTemperature", InRecord, 0, &E::wetTemperature},
        {"dryTemperature", InRecord, 1, &E::dryTemperature},
        {"globeTemperature", InRecord, 2, &E::globeTemperature},
        {"WBGTi", InRecord, 3, &E::WBGTi},
        {"WBGTo", InRecord, 4, &E::WBGTo},
        {"airVelocity", InRecord, 5, &E::airVelocity},
        {"waterLevel", InRecord, 6, &E::waterLevel},
        {"tiltStatus", InRecord, 7, &E::tiltStatus},
    };
    return rows;
}

const Fields<Thalvex4Log> &Thalvex4Log::fields()
{
    using L = Thalvex4Log;
    static const Fields<L> rows = {
        {"date", InRecord, 3, &L::m_registerDate},
        {"enviromentalFactorsList", InRecord, 5, listOf(&L::m_enviromentalFactorsList)}, // files know it by this spelling
    };
    return rows;
}

void Thalvex4Log::readParts(const Pieces &record)
{
    m_enviromentalFactorsList =
        readBlocks<EnvironmentalFactors>(InRecord, record, 5, 8, 1 + Thalvex4::MaxExpansions);
}
