// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDateTime>
#include <QString>

/// The date text of instruments and files: "yy/MM/dd,hh:mm:ss" and the offset from UTC in quarters of an hour,
/// signed and two digits wide. "19/10/09,09:37:01-12" is 9 October 2019, 09:37:01 at UTC-3.
namespace AtDateTime {

/// The text of \a t. An invalid date has an empty front: "+00".
QString toAtString(const QDateTime &t);

/// The moment that \a s tells, with the hour as written and a fixed zone (years 2000 to 2099).
/// Invalid when the front is not of the form or is no date of the calendar.
QDateTime fromAtString(const QString &s);

/// The current moment moved on to the next date that has day of the month \a day (1 to 31).
QDateTime dateForMonthDay(int day);

/// \a day + 1, or 1 when the current month ends before it.
int nextMonthDay(int day);

} // namespace AtDateTime
