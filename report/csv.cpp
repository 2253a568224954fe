// SPDX-License-Identifier: GPL-3.0-or-later
#include "report/csv.h"

namespace {

QString quoted(const QStringList &cells)
{
    return QLatin1Char('"') + cells.join(QLatin1String("\";\"")) + QLatin1Char('"');
}

} // namespace

QByteArray Csv::headLine(const QStringList &cells)
{
    return (quoted(cells) + QLatin1String(";\r\n")).toLatin1();
}

QByteArray Csv::valueLine(const QStringList &cells)
{
    return (quoted(cells) + QLatin1String("\r\n")).toUtf8();
}
