// SPDX-License-Identifier: GPL-3.0-or-later
#include "simulator/noise.h"

namespace {

constexpr std::array<Knot, 9> shift = {
    {{0, 54.0}, {6, 56.0}, {8, 84.0}, {11.5, 88.0}, {12.5, 66.0}, {13.5, 86.0}, {17, 85.0}, {19, 60.0}, {24, 54.0}}};
constexpr std::array<Knot, 5> spectrum = {{{0, 24.0}, {8, 13.0}, {17, 8.5}, {24, 13.0}, {33, 26.0}}};

} // namespace

int Noise::at(qint64 clock) const
{
    const double hour = double(clock % 86400) / 3600;
    const double hammering = m_chance.drift(1, clock, 240) > 0.6 ? 6 + 4 * m_chance.random(2, clock) : 0;
    return tenths(curve(shift, hour) + 3 * m_chance.drift(3, clock, 300) + 1.5 * m_chance.random(4, clock) + hammering);
}

double Noise::below(int third, qint64 clock) const
{
    return curve(spectrum, third) + m_chance.random(quint64(100 + third), clock);
}
