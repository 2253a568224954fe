// SPDX-License-Identifier: GPL-3.0-or-later
#include "report/dates.h"

#include "model/field.h"

#include <QLocale>

QString dateText(const QDate &date)
{
    if (!date.isValid())
        return absentText();
    QString format = QLocale::system().dateFormat(QLocale::ShortFormat);
    if (!format.contains(QLatin1String("yyyy")))
        format.replace(QLatin1String("yy"), QLatin1String("yyyy"));
    return QLocale::system().toString(date, format);
}
