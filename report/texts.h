// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "model/field.h"

#include <QString>

/// \a text, cut when it has more than \a most characters: the memory that laying out a text takes grows with it.
inline QString shortened(const QString &text, int most)
{
    return text.size() > most ? text.left(most - 1) + QChar(0x2026) : text;
}

inline QString captionedText(const QString &caption, const QString &value)
{
    return caption + QLatin1String(": ") + value;
}

/// \a text, "---" for none.
inline QString dashed(const QString &text)
{
    return text.trimmed().isEmpty() ? absentText() : text;
}
