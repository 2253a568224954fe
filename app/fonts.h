// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

/// Adds the fonts that the program brings along, for pages and reports: the id of the display font, -1 when that failed.
int loadApplicationFonts();
