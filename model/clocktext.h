// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

/// Whole seconds as "hh:mm:ss"; hours grow as they need to ("100:00:00").
QString clockText(int seconds);

/// The seconds of "hh:mm"; a part that is no number counts 0.
int hourMinuteSeconds(const QString &text);

/// The seconds of "mm:ss"; a part that is no number counts 0.
int minuteSecondSeconds(const QString &text);
