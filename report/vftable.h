// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "report/vftablerow.h"

#include <QFont>
#include <QObject>
#include <QSize>
#include <QVector>

class QPainter;
class VfSubSuperScript;

/// A table in a report, made, fed and drawn once. Set the rows before the heads: both make up the columns' widths, and
/// heads that do not match the cells of the first row in number are left out.
class VfTable : public QObject
{
    Q_OBJECT

public:
    explicit VfTable(QPainter *painter);
    ~VfTable() override;

    /// Takes \a items over, one for each column.
    virtual void setHeader(const QList<VfSubSuperScript *> &items);
    /// Takes \a rows over.
    virtual void setRows(const QList<VfTableRow *> &rows);
    /// Draws the table from (\a x, \a y) on.
    virtual int draw(int x, int y);
    virtual int drawHeader(int x, int y);
    virtual int drawRow(const VfTableRow &row, int rowHeight, int x, int y);
    /// A new day begins.
    virtual int drawDateRow(const QString &date, int x, int y);
    /// Pages that draw() begins when the table starts at \a y of each.
    virtual int pageCount(int y) const;

    int headerHeight() const { return m_headerHeight; }
    void setHeaderHeight(int height) { m_headerHeight = height; }
    int rowHeight() const { return m_rowHeight; }
    void setRowHeight(int height) { m_rowHeight = height; }
    QFont rowFont() const { return m_rowFont; }
    void setRowFont(const QFont &font) { m_rowFont = font; }
    QFont headerFont() const { return m_headerFont; }
    void setHeaderFont(const QFont &font) { m_headerFont = font; }
    QFont smallFont() const { return m_smallFont; }
    void setSmallFont(const QFont &font) { m_smallFont = font; }
    /// Kept free below the table.
    int bottomMargin() const { return m_bottomMargin; }
    void setBottomMargin(int margin) { m_bottomMargin = margin; }
    /// Whether the printer has begun the page that newPage() asked for.
    bool newPageDone() const { return m_newPageDone; }
    void setNewPageDone(bool done) { m_newPageDone = done; }
    /// Whether the printer has ended the page that finishPage() told of.
    bool finishPageDone() const { return m_finishPageDone; }
    void setFinishPageDone(bool done) { m_finishPageDone = done; }

    int rowCount() const { return m_rowCount; }
    int columnCount() const { return m_columnCount; }
    QVector<int> columnWidths() const { return m_columnWidths; }
    /// Width of all columns.
    int totalWidth() const;

signals:
    void newPage();
    void finishPage();

protected:
    VfTable(QPainter *painter, int cellMarginX, int cellMarginY);

    /// Keeps \a rows and widens columns and rows to their cells; \a cellSize tells the size of a text in a column.
    template <class CellSize> void measureRows(const QList<VfTableRow *> &rows, CellSize cellSize);
    /// Makes column \a column at least as wide as a text of \a width needs.
    void widenColumn(int column, int width);
    /// Gives \a flag and clears it, once it is set; false after a second.
    static bool takeFlag(bool &flag);

    int m_cellMarginX = 0; ///< added to a text's width
    int m_cellMarginY = 0; ///< added to a text's height
    QPainter *m_painter;
    QVector<VfTableRow> m_rows;
    QVector<int> m_columnWidths;
    int m_rowHeight = 0;
    QStringList m_header;                    ///< heads as plain text
    QList<VfSubSuperScript *> m_headerItems; ///< heads with subscripts, children of the table
    int m_headerHeight = 0;
    int m_bottomMargin = 0;
    int m_columnCount = 0;
    int m_rowCount = 0;
    QFont m_rowFont;
    QFont m_headerFont;
    QFont m_smallFont;
    bool m_newPageDone = false;
    bool m_finishPageDone = false;

private:
    void takeRows(const QList<VfTableRow *> &rows);
};

template <class CellSize> void VfTable::measureRows(const QList<VfTableRow *> &rows, CellSize cellSize)
{
    takeRows(rows);
    for (const VfTableRow &row : qAsConst(m_rows)) {
        int highest = 0;
        for (int column = 0; column < qMin(m_columnCount, row.cells.size()); ++column) {
            const QSize size = cellSize(column, row.cells[column]);
            widenColumn(column, size.width());
            highest = qMax(highest, size.height());
        }
        m_rowHeight = qMax(m_rowHeight, highest + m_cellMarginY);
    }
}
