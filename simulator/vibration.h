// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "simulator/course.h"

/// The vibration of a tool in the hands, or of a seat, on three axes: spells of work and rests between them. A function of
/// the seed and the time alone.
class Vibration
{
public:
    explicit Vibration(quint32 seed) : m_chance(seed) {}

    /// Weighted acceleration in thousandths of m/s²; `clock`: seconds since any midnight; `axis`: 0 to 2.
    [[nodiscard]] int at(qint64 clock, int axis, bool wholeBody) const;
    /// Crest factor in hundredths.
    [[nodiscard]] int crest(qint64 clock, int axis) const;
    /// How much of the acceleration's square lies in a band, before all bands are brought to their sum.
    [[nodiscard]] double share(int band, int bands) const;

private:
    Chance m_chance;
};
