// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QCoreApplication>

#include <algorithm>
#include <iterator>

/// A code that instruments send, and what it means.
struct CodeText {
    const char *code;
    const char *text; ///< to be translated in the context of its table
};

/// The translation, in \a context, of the text that \a table has for \a code, or \a otherwise.
template <std::size_t n>
QString textOfCode(const CodeText (&table)[n], const char *context, const QString &code, const QString &otherwise)
{
    const auto row = std::find_if(std::begin(table), std::end(table),
                                  [&](const CodeText &known) { return code == QLatin1String(known.code); });
    return row == std::end(table) ? otherwise : QCoreApplication::translate(context, row->text);
}
