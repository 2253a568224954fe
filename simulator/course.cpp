// SPDX-License-Identifier: GPL-3.0-or-later
#include "simulator/course.h"

int tenths(double value)
{
    return value < 0 ? -int(0.5 - value * 10) : int(value * 10 + 0.5);
}

/// splitmix64 of seed, stream and step.
double Chance::random(quint64 stream, qint64 step) const
{
    quint64 z = (m_seed * 0x9E3779B97F4A7C15u) ^ (stream * 0xD1B54A32D192ED03u) ^ quint64(step);
    z += 0x9E3779B97F4A7C15u;
    z = (z ^ (z >> 30)) * 0xBF58476D1CE4E5B9u;
    z = (z ^ (z >> 27)) * 0x94D049BB133111EBu;
    z ^= z >> 31;
    return double(z >> 11) / double(1ull << 52) - 1;
}

double Chance::drift(quint64 stream, qint64 clock, int period) const
{
    const qint64 step = clock / period;
    const double from = random(stream, step);
    const double to = random(stream, step + 1);
    return from + (to - from) * smooth(double(clock % period) / period);
}
