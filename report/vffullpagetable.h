// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "report/placedtext.h"
#include "report/vftable.h"

#include <QHash>

/// The log of an experiment over as many whole pages as it needs, in blocks of the same columns side by side. For each
/// page it emits newPage() and finishPage(), which the printer answers with head and foot and by setting the flags.
class VfFullPageTable : public VfTable
{
    Q_OBJECT

public:
    explicit VfFullPageTable(QPainter *painter);
    ~VfFullPageTable() override;

    void setHeader(const QList<VfSubSuperScript *> &items) override;
    void setRows(const QList<VfTableRow *> &rows) override;
    /// 0, or -1 when the table is wider than the window or nobody begins or ends a page.
    int draw(int x, int y) override;
    /// Draws the heads of all blocks of a page and the rules between blocks. Returns the heads' height.
    int drawHeader(int x, int y) override;
    int drawRow(const VfTableRow &row, int rowHeight, int x, int y) override;
    /// A new day takes no room.
    int drawDateRow(const QString &date, int x, int y) override;
    /// 0 for a table that is wider than the window.
    int pageCount(int y) const override;

private:
    /// Goes over all rows as they come to stand, from \a y of each page on. \a beginPage(first) tells whether there is
    /// a page; \a placeRow(row, block, cursor, newDay) gives the height of what it placed.
    template <class BeginPage, class PlaceRow> bool walk(int y, BeginPage beginPage, PlaceRow placeRow) const;
    /// Size of \a text in a cell. In a font of fixed pitch texts of the same length are of one size.
    QSize cellSize(const QString &text);
    void drawCell(const QString &text, const QRect &cell);
    void drawRules(int x, int y);
    bool turnPage();

    QHash<int, QSize> m_sizeByLength;
    QHash<QString, QSize> m_sizeByText;
    GlyphLine m_line;
};
