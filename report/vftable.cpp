// SPDX-License-Identifier: GPL-3.0-or-later
#include "report/vftable.h"

#include "report/fonts.h"
#include "report/vfsubsuperscript.h"

#include <QCoreApplication>
#include <QThread>

#include <numeric>
#include <utility>

VfTable::VfTable(QPainter *painter) : VfTable(painter, 0, 0) {}

VfTable::VfTable(QPainter *painter, int cellMarginX, int cellMarginY)
    : m_cellMarginX(cellMarginX), m_cellMarginY(cellMarginY), m_painter(painter), m_rowFont(ReportFont::mono(8)),
      m_headerFont(ReportFont::mono(8)), m_smallFont(ReportFont::mono(5))
{
}

VfTable::~VfTable() = default;

void VfTable::setHeader(const QList<VfSubSuperScript *> &) {}

void VfTable::setRows(const QList<VfTableRow *> &) {}

int VfTable::draw(int, int)
{
    return 0;
}

int VfTable::drawHeader(int, int)
{
    return 0;
}

int VfTable::drawRow(const VfTableRow &, int, int, int)
{
    return 0;
}

int VfTable::drawDateRow(const QString &, int, int)
{
    return 0;
}

int VfTable::pageCount(int) const
{
    return 0;
}

int VfTable::totalWidth() const
{
    return std::accumulate(m_columnWidths.cbegin(), m_columnWidths.cend(), 0);
}

void VfTable::takeRows(const QList<VfTableRow *> &rows)
{
    m_rows.clear();
    m_rows.reserve(rows.size());
    for (VfTableRow *row : rows) {
        m_rows.append(std::move(*row));
        delete row;
    }
    if (m_rows.isEmpty())
        return;
    m_columnCount = m_rows.first().cells.size();
    m_rowCount = m_rows.size();
    m_columnWidths = QVector<int>(m_columnCount, 0);
    m_rowHeight = 0;
}

void VfTable::widenColumn(int column, int width)
{
    m_columnWidths[column] = qMax(m_columnWidths[column], width + m_cellMarginX);
}

bool VfTable::takeFlag(bool &flag)
{
    for (int round = 0; !flag && round < 100; ++round) {
        QCoreApplication::processEvents();
        if (!flag)
            QThread::msleep(10);
    }
    return std::exchange(flag, false);
}
