// SPDX-License-Identifier: GPL-3.0-or-later
#include "model/atdatetime.h"

#include <QHash>
#include <QTimeZone>

#include <algorithm>

namespace {

constexpr int SecondsInQuarter = 900;
constexpr int MostQuarters = 56; ///< 14 hours, what a zone may be off from UTC
constexpr int Century = 2000;

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

AtMoment::AtMoment(const QDateTime &t)
    : m_quarters(static_cast<qint8>(t.offsetFromUtc() / SecondsInQuarter)), m_valid(t.isValid())
{
    if (!m_valid)
        return;
    const QDate date = t.date();
    const QTime time = t.time();
    const int parts[] = {date.year() % 100, date.month(), date.day(), time.hour(), time.minute(), time.second()};
    std::copy(std::begin(parts), std::end(parts), m_parts.begin());
}

// Digits are taken by hand: the library's parser would pass through the reader's own zone and move an hour that its
// summer time skips, and it is twenty times slower, which decides how long a day of records takes to open.
AtMoment AtMoment::fromText(const QString &s)
{
    constexpr int FrontLength = 17;
    static const char separators[] = {'/', '/', ',', ':', ':'};
    if (s.size() < FrontLength)
        return {};
    AtMoment moment;
    for (int i = 0; i < 6; ++i) {
        const int part = twoDigits(s.constData() + 3 * i);
        if (part < 0 || (i < 5 && s.at(3 * i + 2) != QLatin1Char(separators[i])))
            return {};
        moment.m_parts[i] = static_cast<quint8>(part);
    }
    const int quarters = s.rightRef(3).toInt();
    const auto &[year, month, day, hour, minute, second] = moment.m_parts;
    if (!QDate::isValid(Century + year, month, day) || !QTime::isValid(hour, minute, second) || qAbs(quarters) > MostQuarters)
        return {};
    moment.m_quarters = static_cast<qint8>(quarters);
    moment.m_valid = true;
    return moment;
}

QString AtMoment::text() const
{
    QString text;
    text.reserve(20);
    for (int i = 0; m_valid && i < 6; ++i) {
        if (i > 0)
            text += QLatin1Char("//,::"[i - 1]);
        appendTwoDigits(text, m_parts[i]);
    }
    text += QLatin1Char(m_quarters < 0 ? '-' : '+');
    appendTwoDigits(text, qAbs(m_quarters));
    return text;
}

QDateTime AtMoment::dateTime() const
{
    if (!m_valid)
        return {};
    const auto &[year, month, day, hour, minute, second] = m_parts;
    return {QDate(Century + year, month, day), QTime(hour, minute, second), zoneFor(m_quarters)};
}

qint64 AtMoment::toMSecsSinceEpoch() const
{
    if (!m_valid)
        return 0;
    const auto &[year, month, day, hour, minute, second] = m_parts;
    const qint64 days = QDate(1970, 1, 1).daysTo(QDate(Century + year, month, day));
    return 1000 * (((24 * days + hour) * 60 + minute) * 60 + second - SecondsInQuarter * m_quarters);
}

bool AtMoment::operator==(const AtMoment &other) const
{
    return m_parts == other.m_parts && m_quarters == other.m_quarters && m_valid == other.m_valid;
}

QDateTime AtDateTime::fromAtString(const QString &s)
{
    return AtMoment::fromText(s).dateTime();
}

QString AtDateTime::toAtString(const QDateTime &t)
{
    return AtMoment(t).text();
}

// Months are counted on the date alone: summer time may skip the hour on one of the days between.
QDateTime AtDateTime::dateForMonthDay(int day, const QDateTime &now)
{
    QDate date = now.date();
    if (day < date.day())
        date = date.addMonths(1);
    while (day > date.daysInMonth() && day <= 31)
        date = date.addMonths(1);
    QDateTime when = now;
    when.setDate(date.addDays(day - date.day()));
    return when;
}

int AtDateTime::nextMonthDay(int day)
{
    return day + 1 > QDate::currentDate().daysInMonth() ? 1 : day + 1;
}
