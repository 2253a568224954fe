// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

#include <algorithm>
#include <cstdio>
#include <ctime>
#include <vector>

/// Milliseconds of processor that \a work takes: the median of \a repetitions.
template <class Work> double median(int repetitions, Work work)
{
    std::vector<double> times;
    for (int i = 0; i < repetitions; ++i) {
        const std::clock_t start = std::clock();
        work();
        times.push_back(1000.0 * static_cast<double>(std::clock() - start) / CLOCKS_PER_SEC);
    }
    std::sort(times.begin(), times.end());
    return times[times.size() / 2];
}

inline void heading()
{
    std::printf("%-64s | %12s | %12s | %6s | %s\n", "what", "floor", "measured", "ratio", "goal");
    std::fflush(stdout);
}

inline void row(const QString &what, double floor, double measured, const char *unit, const char *goal)
{
    std::printf("%-64s | %9.3f %s | %9.3f %s | %6.3f | %s\n", qPrintable(what), floor, unit, measured, unit,
                measured / floor, goal);
    std::fflush(stdout);
}
