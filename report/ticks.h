// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <QVector>

/// A place on an axis and what stands there; two lines are parted by "\n".
struct Tick {
    double value = 0;
    QString label;
};

/// Where an axis is labelled: at round places within its range.
namespace Ticks {

/// At most \a most round values between \a lowest and \a highest, in the style of the locale.
QVector<Tick> values(double lowest, double highest, int most);

/// At most \a most round local times between two moments, in ms since the epoch, as "hh:mm:ss". When they are of
/// several days, the first of each day has its date in a second line.
QVector<Tick> times(double begin, double end, int most);

} // namespace Ticks
