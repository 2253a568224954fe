// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDate>
#include <QStringList>

/// One row of a table in a report.
class VfTableRow
{
public:
    VfTableRow() = default;
    explicit VfTableRow(const QStringList &rowCells, const QDate &rowDate = {}) : cells(rowCells), date(rowDate) {}

    QStringList cells;
    QDate date; ///< null in tables that know no days
};
