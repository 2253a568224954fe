// SPDX-License-Identifier: GPL-3.0-or-later
#include "report/fonts.h"

namespace {

QFont reportFont(const QString &family, int pixelSize, QFont::Weight weight)
{
    QFont font(family);
    font.setPixelSize(pixelSize);
    font.setWeight(weight);
    return font;
}

} // namespace

QFont ReportFont::sans(int pixelSize, QFont::Weight weight)
{
    return reportFont(QStringLiteral("FreeSans"), pixelSize, weight);
}

QFont ReportFont::mono(int pixelSize)
{
    return reportFont(QStringLiteral("FreeMono"), pixelSize, QFont::Normal);
}
