// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QEventLoop>
#include <QTimer>

#include <ctime>

/// The seconds of processor that the program takes while nothing is to be done for \a milliseconds.
inline double processorTimeAtRest(int milliseconds)
{
    const std::clock_t before = std::clock();
    QEventLoop wait;
    QTimer::singleShot(milliseconds, &wait, &QEventLoop::quit);
    wait.exec();
    return double(std::clock() - before) / CLOCKS_PER_SEC;
}
