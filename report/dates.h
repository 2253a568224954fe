// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDate>
#include <QString>

/// \a date in the order of the system's locale, with all digits of the year; "---" for none.
QString dateText(const QDate &date);
