// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

#include <optional>

/// The number that \a text says, as instruments write them; nothing for a text that says none ("---", "OL"). Short
/// decimals are read as exactly as QString::toDouble() does and many times faster; it reads the rest.
std::optional<double> numberIn(const QString &text);

/// The same with 0 for a text that says no number.
inline double numberOf(const QString &text)
{
    return numberIn(text).value_or(0);
}
