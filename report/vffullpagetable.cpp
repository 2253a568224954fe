// SPDX-License-Identifier: GPL-3.0-or-later
#include "report/vffullpagetable.h"

#include "report/dates.h"
#include "report/pagecount.h"
#include "report/rulepen.h"
#include "report/vfsubsuperscript.h"

#include <QPainter>
#include <QtMath>

#include <algorithm>

namespace {

constexpr int cellFlags = Qt::AlignCenter | Qt::TextWordWrap;

/// Whether \a text is a number or a time, of characters that every fixed-pitch font has and that never wrap.
bool isPlain(const QString &text)
{
    return std::all_of(text.cbegin(), text.cend(), [](QChar c) {
        return (c >= QLatin1Char('0') && c <= QLatin1Char('9')) || c == QLatin1Char('.') || c == QLatin1Char(',') ||
               c == QLatin1Char(':');
    });
}

} // namespace

VfFullPageTable::VfFullPageTable(QPainter *painter) : VfTable(painter, 8, 8) {}

VfFullPageTable::~VfFullPageTable() = default;

void VfFullPageTable::setHeader(const QList<VfSubSuperScript *> &items)
{
    for (VfSubSuperScript *item : items) {
        for (VfSubSuperScript *piece = item; piece; piece = piece->next())
            piece->setParent(this);
    }
    m_headerItems.clear();
    m_headerHeight = 0;
    if (items.size() == m_columnCount) {
        m_headerItems = items;
        for (int column = 0; column < m_columnCount; ++column) {
            widenColumn(column, items[column]->width(m_painter));
            m_headerHeight = qMax(m_headerHeight, items[column]->height(m_painter));
        }
    }
    m_headerHeight += m_cellMarginY;
}

void VfFullPageTable::setRows(const QList<VfTableRow *> &rows)
{
    const QFont before = m_painter->font();
    m_painter->setFont(m_rowFont);
    m_line = GlyphLine(m_rowFont, m_painter);
    m_sizeByLength.clear();
    m_sizeByText.clear();
    measureRows(rows, [this](int, const QString &text) { return cellSize(text); });
    m_painter->setFont(before);
}

QSize VfFullPageTable::cellSize(const QString &text)
{
    QSize &size = m_line.advance() > 0 && isPlain(text) ? m_sizeByLength[text.size()] : m_sizeByText[text];
    if (!size.isValid()) { // whole pixels: the margin holds the fraction, and a day's log still stands twice beside
                           // each other on a page
        const QRectF bounds = m_painter->boundingRect(QRectF(m_painter->window()), cellFlags, text);
        size = QSize(int(bounds.width()), qCeil(bounds.height()));
    }
    return size;
}

template <class BeginPage, class PlaceRow>
bool VfFullPageTable::walk(int y, BeginPage beginPage, PlaceRow placeRow) const
{
    const QRect window = m_painter->window();
    const int blocks = PageCount::blocks(window.width(), totalWidth());
    if (blocks == 0)
        return m_rows.isEmpty();
    QDate day = m_rows.first().date;
    int block = 0;
    int cursor = y + m_headerHeight;
    if (!beginPage(true))
        return false;
    for (const VfTableRow &row : m_rows) {
        const bool newDay = row.date != day;
        if (!PageCount::rowFits(cursor, m_bottomMargin, m_rowHeight, newDay, window.height())) {
            block = (block + 1) % blocks;
            cursor = y + m_headerHeight;
            if (block == 0 && !beginPage(false))
                return false;
        }
        cursor += placeRow(row, block, cursor, newDay);
        day = row.date;
    }
    return true;
}

int VfFullPageTable::pageCount(int y) const
{
    int pages = 0;
    walk(
        y, [&pages](bool) { return ++pages > 0; }, [this](const VfTableRow &, int, int, bool) { return m_rowHeight; });
    return pages;
}

int VfFullPageTable::draw(int x, int y)
{
    const int windowWidth = m_painter->window().width();
    const int left = x + PageCount::blockInset(windowWidth, totalWidth());
    const auto beginPage = [&](bool first) {
        if (first) {
            emit newPage();
            m_newPageDone = false; // the first page is not waited for
        } else if (!turnPage()) {
            return false;
        }
        drawHeader(left, y);
        return true;
    };
    const auto placeRow = [&](const VfTableRow &row, int block, int cursor, bool newDay) {
        const int column = left + block * PageCount::blockWidth(windowWidth, totalWidth());
        int height = 0;
        if (newDay)
            height = drawDateRow(dateText(row.date), column, cursor);
        return height + drawRow(row, m_rowHeight, column, cursor + height);
    };
    return walk(y, beginPage, placeRow) ? 0 : -1;
}

bool VfFullPageTable::turnPage()
{
    emit finishPage();
    if (!takeFlag(m_finishPageDone))
        return false;
    emit newPage();
    return takeFlag(m_newPageDone);
}

int VfFullPageTable::drawHeader(int x, int y)
{
    const int windowWidth = m_painter->window().width();
    const QFont before = m_painter->font();
    m_painter->setFont(m_headerFont);
    for (int block = 0; block < PageCount::blocks(windowWidth, totalWidth()); ++block) {
        m_painter->resetTransform();
        m_painter->translate(x + block * PageCount::blockWidth(windowWidth, totalWidth()), y);
        for (int column = 0; column < m_headerItems.size(); ++column) {
            m_headerItems[column]->draw(0, 0, m_columnWidths[column] - 1, m_headerHeight - 1, m_painter);
            m_painter->translate(m_columnWidths[column], 0);
        }
    }
    m_painter->setFont(before);
    drawRules(x, y);
    return m_headerHeight;
}

void VfFullPageTable::drawRules(int x, int y)
{
    const QRect window = m_painter->window();
    const QPen before = m_painter->pen();
    m_painter->resetTransform();
    m_painter->setPen(rulePen());
    int rule = x - PageCount::blockInset(window.width(), totalWidth());
    for (int block = 1; block < PageCount::blocks(window.width(), totalWidth()); ++block) {
        rule += PageCount::blockWidth(window.width(), totalWidth());
        m_painter->drawLine(rule, y, rule, window.height() - m_bottomMargin);
    }
    m_painter->setPen(before);
}

int VfFullPageTable::drawRow(const VfTableRow &row, int rowHeight, int x, int y)
{
    m_painter->resetTransform();
    for (int column = 0; column < qMin(m_columnCount, row.cells.size()); ++column) {
        drawCell(row.cells[column], QRect(x, y, m_columnWidths[column], rowHeight));
        x += m_columnWidths[column];
    }
    m_line.flush(m_painter);
    return rowHeight;
}

void VfFullPageTable::drawCell(const QString &text, const QRect &cell)
{
    const QSize size = cellSize(text);
    const qreal left = cell.x() + (cell.width() - m_line.advance() * text.size()) / 2;
    if (m_line.append(text, left, cell.y() + (cell.height() - size.height()) / 2.0))
        return;
    const QFont before = m_painter->font();
    m_painter->setFont(m_rowFont);
    m_painter->drawText(cell, cellFlags, text);
    m_painter->setFont(before);
}

int VfFullPageTable::drawDateRow(const QString &, int, int)
{
    return 0;
}
