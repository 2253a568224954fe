// SPDX-License-Identifier: GPL-3.0-or-later
#include "report/vfheadedtable.h"

#include "report/fonts.h"
#include "report/vfsubsuperscript.h"

#include <QPainter>

void VfHeadedTable::setHeader(const QList<VfSubSuperScript *> &items)
{
    m_headerHeight = 0;
    for (int column = 0; column < items.size(); ++column) {
        VfSubSuperScript *const item = items[column];
        if (items.size() != m_columnCount) {
            delete item;
            continue;
        }
        for (VfSubSuperScript *piece = item; piece; piece = piece->next())
            piece->setFont(ReportFont::sans(10, QFont::Bold));
        item->setParent(this);
        m_headerItems.append(item);
        widenColumn(column, item->width(m_painter));
        m_headerHeight = qMax(m_headerHeight, item->height(m_painter));
    }
    m_headerHeight += m_cellMarginY;
}

int VfHeadedTable::drawHeader(int x, int y)
{
    m_painter->resetTransform();
    m_painter->translate(x, y);
    for (int column = 0; column < m_headerItems.size(); ++column) {
        m_headerItems[column]->draw(0, 0, m_columnWidths[column] - 1, m_headerHeight - 1, m_painter);
        m_painter->translate(m_columnWidths[column], 0);
    }
    return m_headerHeight;
}
