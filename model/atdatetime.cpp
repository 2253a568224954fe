// SPDX-License-Identifier: GPL-3.0-or-later
#include "model/atdatetime.h"

#include <QHash>
#include <QTimeZone>

namespace {

constexpr int SecondsInQuarter = 900;

/// Reads the two digits at \a at; -1 when they are none.
int twoDigits(const QChar *at)
{
    const auto digit = [](QChar c) { return c >= QLatin1Char('0') && c <= QLatin1Char('9') ? c.unicode() - '0' : -1; };
    const int tens = digit(at[0]);
    const int ones = digit(at[1]);
    return tens < 0 || ones < 0 ? -1 : tens * 10 + ones;
}

/// A zone object is costly to make and a day of records has one.
const QTimeZone &zoneFor(int quarters)
{
    static QHash<int, QTimeZone> zones;
    auto zone = zones.find(quarters);
    if (zone == zones.end())
        zone = zones.insert(quarters, QTimeZone(quarters * SecondsInQuarter));
    return *zone;
}

void appendTwoDigits(QString &text, int number)
{
    text += QLatin1Char(static_cast<char>('0' + number / 10 % 10));
    text += QLatin1Char(static_cast<char>('0' + number % 10));
}

} // namespace

// Digits are taken by hand: the library's parser would pass through the reader's own zone and move an hour that its
// summer time skips, and it is twenty times slower, which decides how long a day of records takes to open.
QDateTime AtDateTime::fromAtString(const QString &s)
{
    constexpr int FrontLength = 17;
    static const char separators[] = {'/', '/', ',', ':', ':'};
    if (s.size() < FrontLength)
        return {};
    int part[6];
    for (int i = 0; i < 6; ++i) {
        part[i] = twoDigits(s.constData() + 3 * i);
        if (part[i] < 0 || (i < 5 && s.at(3 * i + 2) != QLatin1Char(separators[i])))
            return {};
    }
    const QDate date(2000 + part[0], part[1], part[2]);
    const QTime time(part[3], part[4], part[5]);
    if (!date.isValid() || !time.isValid())
        return {};
    return {date, time, zoneFor(s.rightRef(3).toInt())};
}

QString AtDateTime::toAtString(const QDateTime &t)
{
    QString text;
    text.reserve(20);
    if (t.isValid()) {
        const QDate date = t.date();
        const QTime time = t.time();
        const int numbers[] = {date.year() % 100, date.month(), date.day(), time.hour(), time.minute(), time.second()};
        for (int i = 0; i < 6; ++i) {
            if (i > 0)
                text += QLatin1Char("//,::"[i - 1]);
            appendTwoDigits(text, numbers[i]);
        }
    }
    const int quarters = t.offsetFromUtc() / SecondsInQuarter;
    text += QLatin1Char(quarters < 0 ? '-' : '+');
    appendTwoDigits(text, qAbs(quarters));
    return text;
}

QDateTime AtDateTime::dateForMonthDay(int day)
{
    QDateTime when = QDateTime::currentDateTime();
    const int today = when.date().day();
    if (day < today)
        when = when.addMonths(1);
    while (day > when.date().daysInMonth() && day <= 31)
        when = when.addMonths(1);
    return when.addDays(day - when.date().day());
}

int AtDateTime::nextMonthDay(int day)
{
    return day + 1 > QDate::currentDate().daysInMonth() ? 1 : day + 1;
}
