// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QStringList>

#include <functional>

/// Names the ports that a scan looks at, as system locations.
using PortNames = std::function<QStringList()>;

/// The serial ports that the system knows.
QStringList systemPortNames();
