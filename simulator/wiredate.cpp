// SPDX-License-Identifier: GPL-3.0-or-later
#include "simulator/wiredate.h"

#include <QDate>

namespace {

constexpr qint64 secondsOfDay = 86400;
constexpr qint64 secondsOf2000 = 946684800; // since 1970
constexpr int secondsOfQuarter = 900;

qint64 dayNumber(const QDate &day)
{
    return day.toJulianDay() - QDate(2000, 1, 1).toJulianDay();
}

void putTwoDigits(QByteArray &text, int place, int number)
{
    text[place] = char('0' + number / 10 % 10);
    text[place + 1] = char('0' + number % 10);
}

} // namespace

std::optional<WireDate> WireDate::fromText(const QByteArray &text)
{
    static const QByteArray form = "00/00/00,00:00:00+00";
    if (text.size() != form.size())
        return {};
    for (int i = 0; i < form.size(); ++i) {
        const char c = text[i];
        const bool fits = form[i] == '0' ? c >= '0' && c <= '9' : c == form[i] || (form[i] == '+' && c == '-');
        if (!fits)
            return {};
    }
    const auto number = [&text](int place) { return (text[place] - '0') * 10 + text[place + 1] - '0'; };
    const QDate day(2000 + number(0), number(3), number(6));
    const int zone = text[17] == '-' ? -number(18) : number(18);
    if (!day.isValid() || number(9) > 23 || number(12) > 59 || number(15) > 59 || zone < -48 || zone > 56)
        return {};
    return WireDate{dayNumber(day) * secondsOfDay + number(9) * 3600 + number(12) * 60 + number(15), zone};
}

WireDate WireDate::fromUtc(qint64 secondsSince1970, int quarters)
{
    return {secondsSince1970 - secondsOf2000 + quarters * secondsOfQuarter, quarters};
}

qint64 WireDate::utc() const
{
    return seconds + secondsOf2000 - quarters * secondsOfQuarter;
}

QByteArray WireDate::text() const
{
    qint64 dayCount = seconds / secondsOfDay;
    if (seconds % secondsOfDay < 0)
        --dayCount;
    const QDate day = QDate(2000, 1, 1).addDays(dayCount);
    const int second = int(seconds - dayCount * secondsOfDay);
    QByteArray text = "00/00/00,00:00:00+00";
    const int numbers[] = {day.year() % 100, day.month(), day.day(), second / 3600, second / 60 % 60, second % 60};
    int place = 0;
    for (const int number : numbers) {
        putTwoDigits(text, place, number);
        place += 3;
    }
    text[17] = quarters < 0 ? '-' : '+';
    putTwoDigits(text, 18, qAbs(quarters));
    return text;
}

QByteArray WireDate::fields() const
{
    const QByteArray both = text();
    return '"' + both.left(8) + "\",\"" + both.mid(9) + '"';
}
