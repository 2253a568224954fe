// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "simulator/course.h"

/// The noise at a workplace through day and night: machines that start in the morning, rest over noon and hammer at times.
/// A function of the seed and the time alone.
class Noise
{
public:
    explicit Noise(quint32 seed) : m_chance(seed) {}

    /// The A-weighted level in tenths of dB; `clock`: seconds since any midnight.
    [[nodiscard]] int at(qint64 clock) const;
    /// How far the level of a third octave (0: 10 Hz) lies below that of all together, in dB.
    [[nodiscard]] double below(int third, qint64 clock) const;

private:
    Chance m_chance;
};
