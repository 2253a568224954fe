// SPDX-License-Identifier: GPL-3.0-or-later
#include "report/values.h"

#include <algorithm>
#include <cmath>

std::optional<double> numberIn(const QString &text)
{
    constexpr double powers[] = {1, 10, 100, 1000, 10000, 100000, 1000000};
    const bool negative = text.startsWith(QLatin1Char('-'));
    qint64 digits = 0;
    int decimals = -1; // before the point
    bool plain = text.size() > int(negative) && text.size() < 15;
    for (int i = negative; plain && i < text.size(); ++i) {
        const ushort c = text[i].unicode();
        const bool point = c == '.' && decimals < 0;
        plain = point || (c >= '0' && c <= '9' && decimals < 6);
        if (!point)
            digits = 10 * digits + (c - '0');
        decimals += point || decimals >= 0;
    }
    if (plain && text.back() != QLatin1Char('.') && text[int(negative)] != QLatin1Char('.'))
        return (negative ? -1 : 1) * double(digits) / powers[std::max(decimals, 0)];
    bool ok = false;
    const double value = text.toDouble(&ok);
    return ok && std::isfinite(value) ? std::optional(value) : std::nullopt;
}
