// SPDX-License-Identifier: GPL-3.0-or-later
#include "model/filename.h"

#include <QUrl>

QString pathFromUrl(const QString &url)
{
    if (!url.startsWith(QLatin1String("file://")))
        return url;
    // Dialogs hand over texts in which "#", "?" and "%" are encoded and blanks and accents are not; one that is not
    // encoded belongs to the name all the same.
    QString text = url;
    text.replace(QLatin1Char('#'), QLatin1String("%23")).replace(QLatin1Char('?'), QLatin1String("%3F"));
    QString path = QUrl(text, QUrl::TolerantMode).toLocalFile();
    const bool drive = path.size() > 2 && path[0] == QLatin1Char('/') && path[1].isLetter() && path[2] == QLatin1Char(':');
    return drive ? path.mid(1) : path;
}
