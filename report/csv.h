// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QStringList>

/// Lines of the files that stand beside a report. Every cell is in double quotes, lines end in "\r\n".
namespace Csv {

/// A line of heads: ISO 8859-1, a semicolon behind each cell.
QByteArray headLine(const QStringList &cells);
/// A line of values: UTF-8, semicolons between the cells.
QByteArray valueLine(const QStringList &cells);

} // namespace Csv
