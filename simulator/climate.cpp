// SPDX-License-Identifier: GPL-3.0-or-later
#include "simulator/climate.h"

namespace {

constexpr std::array<Knot, 8> shade = {
    {{0, 21.0}, {5, 19.5}, {8, 23.0}, {12, 29.5}, {15, 34.5}, {18, 30.0}, {22, 24.0}, {24, 21.0}}};
constexpr std::array<Knot, 8> radiation = {
    {{0, 0.8}, {6, 1.0}, {9, 5.0}, {12, 10.0}, {15, 13.0}, {18, 4.0}, {21, 1.0}, {24, 0.8}}};
constexpr std::array<Knot, 6> dryness = {{{0, 2.2}, {6, 1.9}, {12, 6.0}, {15, 8.5}, {19, 4.5}, {24, 2.2}}};

constexpr double roomTemperature = 23.0;

/// A sensor on its way from the room's temperature; `slowness` in seconds.
double warmedUp(double target, qint64 measuring, double slowness)
{
    const double left = 1 / (1 + double(measuring) / slowness);
    return target + (roomTemperature - target) * left * left;
}

/// The nearest tenth of a sum of tenths with weights in tenths.
int weighted(int sum)
{
    return sum < 0 ? -((5 - sum) / 10) : (sum + 5) / 10;
}

} // namespace

Climate::Climate(quint32 seed, int place) : m_chance(quint64(seed) << 8 | quint64(place)), m_place(place) { }

HeatSample Climate::at(qint64 clock, qint64 measuring, char unit) const
{
    const double hour = double(clock % 86400) / 3600;
    const double clouds = m_chance.drift(1, clock, 420);
    double dry = curve(shade, hour) + 0.8 * m_chance.drift(2, clock, 600) + 0.3 * m_place;
    double globe = dry + curve(radiation, hour) * (0.8 + 0.2 * clouds) - 0.5 * m_place;
    double wet = dry - curve(dryness, hour) + 0.4 * m_chance.drift(3, clock, 900);
    dry = warmedUp(dry, measuring, 120) + 0.1 * m_chance.random(4, clock);
    wet = warmedUp(wet, measuring, 240) + 0.1 * m_chance.random(5, clock);
    globe = warmedUp(globe, measuring, 360) + 0.1 * m_chance.random(6, clock);

    const auto shown = [unit](double celsius) { return tenths(unit == 'F' ? celsius * 1.8 + 32 : celsius); };
    HeatSample sample;
    sample.wet = shown(qMin(wet, dry));
    sample.dry = shown(dry);
    sample.globe = shown(globe);
    sample.indoor = weighted(7 * sample.wet + 3 * sample.globe);
    sample.outdoor = weighted(7 * sample.wet + 2 * sample.globe + sample.dry);
    sample.air = tenths(0.6 + 0.1 * m_place + 0.4 * m_chance.drift(7, clock, 180));
    sample.tilted = m_chance.random(8, clock) > 0.99;
    return sample;
}
