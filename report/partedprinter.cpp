// SPDX-License-Identifier: GPL-3.0-or-later
#include "report/partedprinter.h"

#include "report/vfnormaltable.h"

int PartedPrinter::printReport()
{
    if (beginPainting() != 0)
        return -1;
    measureFooter();
    calculateTotalPages(m_tableEnable);
    drawAll(m_tableEnable);
    writeFurtherFiles();
    return 0;
}

void PartedPrinter::calculateTotalPages(bool withLogTable)
{
    m_totalPages = rehearse([&] { drawAll(withLogTable); }).pages;
}

void PartedPrinter::drawAll(bool withLogTable)
{
    drawFront();
    m_footerHeight = drawFooter();
    for (const Part &part : parts()) {
        for (const Content &page : part.pages) {
            newContentPage();
            page();
            drawFooter();
        }
        if (!withLogTable || !part.logTable)
            continue;
        std::unique_ptr<VfTable> table(part.logTable());
        if (isRehearsing())
            m_pageNumber += countTablePages(std::move(table));
        else if (table->totalWidth() <= windowWidth())
            VfPrinter::drawLogTable(std::move(table));
    }
}

void PartedPrinter::keepTogether(const Content &block)
{
    const int height = rehearse(block).height;
    if (m_y + height > contentBottom() && m_y > m_contentTop)
        newContentPage();
    block();
}

void PartedPrinter::wholeSection(const QString &title, const Content &content)
{
    keepTogether([&] { section(title, content); });
}

void PartedPrinter::tableSection(const QString &title, VfNormalTable &table)
{
    const int frame = rehearse([&] { section(title, [] {}); }).height + table.headerHeight();
    for (int row = 0; row < table.rowCount();) {
        const int room = (contentBottom() - m_y - frame) / qMax(table.rowHeight(), 1);
        if (room < 1 && m_y > m_contentTop) {
            newContentPage();
            continue;
        }
        const int rows = qBound(1, room, table.rowCount() - row);
        section(title, [&] { m_y = table.drawRows(row, rows, 0, m_y); });
        row += rows;
    }
}
