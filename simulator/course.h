// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QtGlobal>

#include <array>

// What the courses of simulated measurements are made of: additions and products only, so that every computer gets the
// same digits.

/// From 0 to 1 without a bend at either end.
constexpr double smooth(double part)
{
    return part * part * (3 - 2 * part);
}

/// A value at a place; between two of them the course is smooth.
struct Knot {
    double at, value;
};

template <std::size_t n> double curve(const std::array<Knot, n> &knots, double at)
{
    std::size_t i = 1;
    while (i + 1 < n && knots[i].at < at)
        ++i;
    const Knot &from = knots[i - 1];
    const Knot &to = knots[i];
    return from.value + (to.value - from.value) * smooth((at - from.at) / (to.at - from.at));
}

/// The nearest tenth, as a whole number.
int tenths(double value);

/// Chance that is a function of seed, stream and step alone, so that any moment can be asked for in any order.
class Chance
{
public:
    explicit Chance(quint64 seed) : m_seed(seed) {}

    /// Evenly spread from -1 to 1.
    [[nodiscard]] double random(quint64 stream, qint64 step) const;
    /// A slow swing from -1 to 1, with a new goal every `period` seconds.
    [[nodiscard]] double drift(quint64 stream, qint64 clock, int period) const;

private:
    quint64 m_seed;
};
