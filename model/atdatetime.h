// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDateTime>
#include <QString>

#include <array>

/// A moment as instruments tell it: to the second, in the years 2000 to 2099, with a fixed offset from UTC in quarters of
/// an hour. It is what a day of records keeps of their dates, for it is small and needs no calendar.
class AtMoment
{
public:
    /// No moment.
    AtMoment() = default;
    /// \a t to the second; of its offset whole quarters of an hour stay, of its year the last two digits.
    explicit AtMoment(const QDateTime &t);
    /// The moment that \a s tells; none when the front is not of the form or is no date of the calendar.
    static AtMoment fromText(const QString &s);

    bool isValid() const { return m_valid; }
    /// The text; of no moment the front is empty: "+00".
    QString text() const;
    /// The moment with the hour as written and a fixed zone; invalid for none.
    QDateTime dateTime() const;
    /// What dateTime() would give, without making one; 0 for none.
    qint64 toMSecsSinceEpoch() const;

    bool operator==(const AtMoment &other) const;
    bool operator!=(const AtMoment &other) const { return !(*this == other); }

private:
    std::array<quint8, 6> m_parts = {}; // year without its century, month, day, hour, minute, second
    qint8 m_quarters = 0;
    bool m_valid = false;
};

/// The date text of instruments and files: "yy/MM/dd,hh:mm:ss" and the offset from UTC in quarters of an hour,
/// signed and two digits wide. "19/10/09,09:37:01-12" is 9 October 2019, 09:37:01 at UTC-3.
namespace AtDateTime {

/// The text of \a t. An invalid date has an empty front: "+00".
QString toAtString(const QDateTime &t);

/// The moment that \a s tells, with the hour as written and a fixed zone (years 2000 to 2099).
/// Invalid when the front is not of the form or is no date of the calendar.
QDateTime fromAtString(const QString &s);

/// \a now moved on to the next date that has day of the month \a day (1 to 31); it may be today.
QDateTime dateForMonthDay(int day, const QDateTime &now = QDateTime::currentDateTime());

/// \a day + 1, or 1 when the current month ends before it.
int nextMonthDay(int day);

} // namespace AtDateTime
