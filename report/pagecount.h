// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

/// The arithmetic of a log table that runs over pages, in whole pixels.
namespace PageCount {

/// What a page and its table measure.
struct Measures {
    int windowWidth = 0;
    int windowHeight = 0;
    int contentTop = 0;   ///< where the table's heads begin
    int footerHeight = 0; ///< kept free at the bottom
    int tableWidth = 0;   ///< of one block
    int headerHeight = 0;
    int rowHeight = 0;
};

/// Blocks of the table that stand side by side: 0 when it is wider than the window or has no width.
int blocks(int windowWidth, int tableWidth);

/// Width of a block's share of the window.
int blockWidth(int windowWidth, int tableWidth);

/// How far a block is moved in to stand in the middle of its share.
int blockInset(int windowWidth, int tableWidth);

/// Lines of all blocks of a page; at least 1.
int linesPerPage(const Measures &measures);

/// Pages for \a rows samples over \a dayChanges midnights, each of which counts as a line.
int tablePages(const Measures &measures, int rows, int dayChanges);

/// Whether the next row still stands on the page; with a new day there must be room for two.
bool rowFits(int cursor, int bottomMargin, int rowHeight, bool dayChanged, int windowHeight);

} // namespace PageCount
