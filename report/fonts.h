// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QFont>

/// The fonts of reports; both families come with the program.
namespace ReportFont {

QFont sans(int pixelSize, QFont::Weight weight = QFont::Normal);
QFont mono(int pixelSize);

} // namespace ReportFont
