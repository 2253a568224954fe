// SPDX-License-Identifier: GPL-3.0-or-later
#include "model/clocktext.h"

#include <QStringList>

namespace {

/// Seconds of two numbers with a colon between them, the first in units of \a unit seconds, the second in 60ths of them.
int secondsOf(const QString &text, int unit)
{
    const QStringList parts = text.split(QLatin1Char(':'));
    return parts.value(0).toInt() * unit + parts.value(1).toInt() * (unit / 60);
}

} // namespace

QString clockText(int seconds)
{
    return QString::asprintf("%02d:%02d:%02d", seconds / 3600, seconds / 60 % 60, seconds % 60);
}

int hourMinuteSeconds(const QString &text)
{
    return secondsOf(text, 3600);
}

int minuteSecondSeconds(const QString &text)
{
    return secondsOf(text, 60);
}
