// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/fonts.h"

#include <QFontDatabase>

int loadApplicationFonts()
{
    const int display = QFontDatabase::addApplicationFont(QStringLiteral(":/HANDGOTB.TTF"));
    const QString others[] = {
        QStringLiteral(":/FreeMono, Regular.ttf"),      QStringLiteral(":/FreeMono, Italic.ttf"),
        QStringLiteral(":/FreeMono, Bold Italic.ttf"),  QStringLiteral(":/FreeMono, Bold.ttf"),
        QStringLiteral(":/FreeSans, Regular.ttf"),      QStringLiteral(":/FreeSans, Italic.ttf"),
        QStringLiteral(":/FreeSans, Demi Bold Italic.ttf"), QStringLiteral(":/FreeSans, Demi Bold.ttf"),
        QStringLiteral(":/FreeSerif, Regular.ttf"),     QStringLiteral(":/FreeSerif, Italic.ttf"),
        QStringLiteral(":/FreeSerif, Bold Italic.ttf"), QStringLiteral(":/FreeSerif, Bold.ttf"),
    };
    for (const QString &font : others)
        QFontDatabase::addApplicationFont(font);
    return display;
}
