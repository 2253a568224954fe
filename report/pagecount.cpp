// SPDX-License-Identifier: GPL-3.0-or-later
#include "report/pagecount.h"

#include <algorithm>

int PageCount::blocks(int windowWidth, int tableWidth)
{
    return tableWidth > 0 ? windowWidth / tableWidth : 0;
}

int PageCount::blockWidth(int windowWidth, int tableWidth)
{
    return windowWidth / std::max(blocks(windowWidth, tableWidth), 1);
}

int PageCount::blockInset(int windowWidth, int tableWidth)
{
    return (blockWidth(windowWidth, tableWidth) - tableWidth) / 2;
}

int PageCount::linesPerPage(const Measures &m)
{
    // One division for all blocks: of many narrow ones the sum may hold a line more than they do.
    const int height = m.windowHeight - m.contentTop - m.footerHeight - m.headerHeight;
    return std::max(height * blocks(m.windowWidth, m.tableWidth) / std::max(m.rowHeight, 1), 1);
}

int PageCount::tablePages(const Measures &measures, int rows, int dayChanges)
{
    if (blocks(measures.windowWidth, measures.tableWidth) == 0)
        return 0;
    const int lines = rows + dayChanges;
    const int perPage = linesPerPage(measures);
    return lines / perPage + (lines % perPage > 0 ? 1 : 0);
}

bool PageCount::rowFits(int cursor, int bottomMargin, int rowHeight, bool dayChanged, int windowHeight)
{
    return cursor + bottomMargin + (dayChanged ? 2 * rowHeight : rowHeight) <= windowHeight;
}
