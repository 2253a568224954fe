// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "report/vftable.h"

/// A small table in the flow of a page, in the middle of it, with heads and first column in bold.
class VfNormalTable : public VfTable
{
    Q_OBJECT

public:
    explicit VfNormalTable(QPainter *painter);

    /// This table has no heads with subscripts; \a items are deleted.
    void setHeader(const QList<VfSubSuperScript *> &items) override;
    void setHeader(const QStringList &heads);
    void setRows(const QList<VfTableRow *> &rows) override;
    /// Gives all columns the same width, whatever stands in them.
    void setColumnWidth(int width) { m_columnWidths.fill(width); }
    /// Returns where the table ends; a table wider than the window is not drawn and gives 0.
    int draw(int x, int y) override;
    /// Draws the heads and \a count rows from \a first on. Returns where they end.
    int drawRows(int first, int count, int x, int y);
    int drawHeader(int x, int y) override;
    int drawRow(const VfTableRow &row, int rowHeight, int x, int y) override;

private:
    enum class Line { Head, Body };
    void drawLine(Line line, const QStringList &cells, int height, int x, int y);
    QSize cellSize(Line line, int column, const QString &text);
};
