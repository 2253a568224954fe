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

bool PageCount::rowFits(int cursor, int bottomMargin, int rowHeight, bool dayChanged, int windowHeight)
{
    return cursor + bottomMargin + (dayChanged ? 2 * rowHeight : rowHeight) <= windowHeight;
}
