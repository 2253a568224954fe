// SPDX-License-Identifier: GPL-3.0-or-later
#include "report/ticks.h"

#include "report/dates.h"

#include <QDateTime>
#include <QLocale>

#include <algorithm>
#include <cmath>

namespace {

constexpr int secondsOfDay = 24 * 3600;

/// Round local times from \a begin to \a end, \a step seconds apart: a part of a day, or whole days.
QVector<QDateTime> roundTimes(const QDateTime &begin, const QDateTime &end, qint64 step)
{
    QVector<QDateTime> times;
    const qint64 days = std::max(step / secondsOfDay, qint64(1));
    const qint64 first = begin.date().toJulianDay() / days * days;
    for (QDate day = QDate::fromJulianDay(first); day <= end.date(); day = day.addDays(days)) {
        for (qint64 second = 0; second < secondsOfDay; second += step) {
            const QDateTime time(day, QTime(0, 0).addSecs(int(second)));
            if (time >= begin && time <= end && (times.isEmpty() || time > times.last()))
                times.append(time);
        }
    }
    return times;
}

} // namespace

QVector<Tick> Ticks::values(double lowest, double highest, int most)
{
    QVector<Tick> ticks;
    const double range = highest - lowest;
    if (!(range > 0) || !std::isfinite(range))
        return ticks;
    const double power = std::floor(std::log10(range / most));
    double step = 0;
    for (const double factor : {1, 2, 5, 10}) {
        step = factor * std::pow(10, power);
        if (std::floor(highest / step) - std::ceil(lowest / step) < most)
            break;
    }
    const int decimals = std::max(0, int(-std::floor(std::log10(step) + 1e-9)));
    const double first = std::ceil(lowest / step);
    for (int i = 0; i < most && (first + i) * step <= highest; ++i) {
        const double value = (first + i) * step;
        ticks.append({value, QLocale().toString(value == 0 ? 0.0 : value, 'f', decimals)});
    }
    return ticks;
}

QVector<Tick> Ticks::times(double begin, double end, int most)
{
    static constexpr int parts[] = {1,   2,   5,    10,   15,   20,       30,       60,       120,       300,
                                    600, 900, 1200, 1800, 3600, 2 * 3600, 3 * 3600, 6 * 3600, 12 * 3600, secondsOfDay};
    const double shortest = (end - begin) / 1000 / most;
    const auto part = std::lower_bound(std::cbegin(parts), std::cend(parts), shortest);
    const qint64 step = part != std::cend(parts) ? *part : qint64(std::ceil(shortest / secondsOfDay)) * secondsOfDay;
    const QVector<QDateTime> moments = roundTimes(QDateTime::fromMSecsSinceEpoch(qint64(std::ceil(begin))),
                                                  QDateTime::fromMSecsSinceEpoch(qint64(end)), step);
    const bool severalDays =
        QDateTime::fromMSecsSinceEpoch(qint64(begin)).date() != QDateTime::fromMSecsSinceEpoch(qint64(end)).date();
    QVector<Tick> ticks;
    QDate day;
    for (const QDateTime &moment : moments) {
        QString label = moment.toString(QStringLiteral("hh:mm:ss"));
        if (severalDays && moment.date() != day)
            label += QLatin1Char('\n') + dateText(moment.date());
        day = moment.date();
        ticks.append({double(moment.toMSecsSinceEpoch()), label});
    }
    return ticks;
}
