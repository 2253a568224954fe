// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

/// The path that a file dialog's \a url names: "file:///" goes, encoded characters come back as chosen, and where paths
/// begin at the root the root stays. A text that is no URL is a path already.
QString pathFromUrl(const QString &url);
