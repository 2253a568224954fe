// SPDX-License-Identifier: GPL-3.0-or-later
#include "simulator/families.h"

const QVector<SimulatedFamily> &families()
{
    using Memory = QVector<SimulatedExperiment>;
    static const QVector<SimulatedFamily> rows = {
        {"thalvex2", [](quint32 seed, int, const Memory &memory) { return simulatedThalvex2(seed, memory); }},
        {"thalvex4",
         [](quint32 seed, int expansions, const Memory &memory) {
             return simulatedThalvex4(seed, expansions, memory);
         }},
        {"ardel2", [](quint32 seed, int, const Memory &memory) { return simulatedArdel2(seed, memory); }},
        {"nembra", [](quint32 seed, int, const Memory &memory) { return simulatedNembra(seed, memory); }},
        {"nembraplus", [](quint32 seed, int, const Memory &memory) { return simulatedNembraPlus(seed, memory); }},
        {"lomtrix", [](quint32 seed, int, const Memory &memory) { return simulatedLomtrix(seed, memory); }},
        {"zelk", [](quint32 seed, int, const Memory &memory) { return simulatedZelk(seed, memory); }, everySensor},
    };
    return rows;
}

QByteArray serialNumber(const QByteArray &letters, quint32 seed)
{
    return letters + '-' + QByteArray::number(seed * 4217u % 100000u).rightJustified(5, '0');
}
