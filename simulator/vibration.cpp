// SPDX-License-Identifier: GPL-3.0-or-later
#include "simulator/vibration.h"

namespace {

constexpr int ofHand[] = {3200, 2400, 4100}; // thousandths of m/s², while at work
constexpr int ofBody[] = {310, 260, 620};
constexpr double atRest = 0.15;

} // namespace

int Vibration::at(qint64 clock, int axis, bool wholeBody) const
{
    const double spell = m_chance.drift(1, clock, 420);
    const double work = spell < -0.5 ? atRest : 1 + 0.3 * spell;
    const double unrest = 1 + 0.2 * m_chance.drift(quint64(10 + axis), clock, 60)
                          + 0.1 * m_chance.random(quint64(20 + axis), clock);
    return tenths((wholeBody ? ofBody : ofHand)[axis] * work * unrest / 10);
}

int Vibration::crest(qint64 clock, int axis) const
{
    const double shock = m_chance.random(quint64(30 + axis), clock) > 0.95 ? 4 : 0;
    return tenths(10 * (4 + m_chance.random(quint64(40 + axis), clock) + shock));
}

double Vibration::share(int band, int bands) const
{
    const double place = double(band) / bands - 0.35;
    return 1 / (1 + 25 * place * place) + 0.05 * (1 + m_chance.random(50, band));
}
