// SPDX-License-Identifier: GPL-3.0-or-later
#include "report/vfnormaltable.h"

#include "report/fonts.h"
#include "report/vfsubsuperscript.h"

#include <QPainter>

VfNormalTable::VfNormalTable(QPainter *painter) : VfTable(painter, 20, 10) {}

void VfNormalTable::setHeader(const QList<VfSubSuperScript *> &items)
{
    qDeleteAll(items);
}

void VfNormalTable::setHeader(const QStringList &heads)
{
    m_header.clear();
    m_headerHeight = 0;
    if (heads.size() == m_columnCount) {
        m_header = heads;
        for (int column = 0; column < m_columnCount; ++column) {
            const QSize size = cellSize(Line::Head, column, heads[column]);
            widenColumn(column, size.width());
            m_headerHeight = qMax(m_headerHeight, size.height());
        }
    }
    m_headerHeight += m_cellMarginY;
}

void VfNormalTable::setRows(const QList<VfTableRow *> &rows)
{
    measureRows(rows, [this](int column, const QString &text) { return cellSize(Line::Body, column, text); });
}

int VfNormalTable::draw(int x, int y)
{
    if (totalWidth() > m_painter->window().width())
        return 0;
    return drawRows(0, m_rowCount, x, y);
}

int VfNormalTable::drawRows(int first, int count, int x, int y)
{
    const int left = (m_painter->window().width() - totalWidth()) / 2 + x;
    int cursor = y + drawHeader(left, y);
    for (int row = first; row < first + count; ++row)
        cursor += drawRow(m_rows[row], m_rowHeight, left, cursor);
    return cursor;
}

int VfNormalTable::drawHeader(int x, int y)
{
    drawLine(Line::Head, m_header, m_headerHeight, x, y);
    return m_headerHeight;
}

int VfNormalTable::drawRow(const VfTableRow &row, int rowHeight, int x, int y)
{
    drawLine(Line::Body, row.cells, rowHeight, x, y);
    return rowHeight;
}

void VfNormalTable::drawLine(Line line, const QStringList &cells, int height, int x, int y)
{
    const QFont before = m_painter->font();
    m_painter->resetTransform();
    m_painter->translate(x, y);
    for (int column = 0; column < qMin(m_columnCount, cells.size()); ++column) {
        m_painter->setFont(ReportFont::sans(10, line == Line::Head || column == 0 ? QFont::Bold : QFont::Normal));
        const int flags = Qt::TextWordWrap | Qt::AlignVCenter | (column == 0 ? Qt::AlignLeft : Qt::AlignHCenter);
        m_painter->drawText(QRect(0, 0, m_columnWidths[column], height), flags, cells[column]);
        m_painter->translate(m_columnWidths[column], 0);
    }
    m_painter->setFont(before);
}

QSize VfNormalTable::cellSize(Line line, int column, const QString &text)
{
    const QFont before = m_painter->font();
    m_painter->setFont(ReportFont::sans(10, line == Line::Head || column == 0 ? QFont::Bold : QFont::Normal));
    const int side = line == Line::Body && column == 0 ? Qt::AlignLeft : Qt::AlignCenter;
    const QSize size = m_painter->boundingRect(m_painter->window(), side | Qt::TextWordWrap, text).size();
    m_painter->setFont(before);
    return size;
}
