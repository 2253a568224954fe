// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

/// What the about window and the splash screen tell of the program.
namespace BuildInfo {

QString version();
/// "Oct  9 2019 - 09:37:01".
QString builtDate();
QString builtYear();
QString revision();

} // namespace BuildInfo
