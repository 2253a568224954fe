// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

/// The arithmetic of a log table that runs over pages, in whole pixels.
namespace PageCount {

/// Blocks of the table that stand side by side: 0 when it is wider than the window or has no width.
int blocks(int windowWidth, int tableWidth);

/// Width of a block's share of the window.
int blockWidth(int windowWidth, int tableWidth);

/// How far a block is moved in to stand in the middle of its share.
int blockInset(int windowWidth, int tableWidth);

/// Whether the next row still stands on the page; with a new day there must be room for two.
bool rowFits(int cursor, int bottomMargin, int rowHeight, bool dayChanged, int windowHeight);

} // namespace PageCount
