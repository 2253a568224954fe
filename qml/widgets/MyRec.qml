// SPDX-License-Identifier: GPL-3.0-or-later
import QtQuick 2.15
import "."

/// A plain framed rectangle.
Rectangle {
    color: Theme.ground
    border { width: 1; color: Theme.line }
    radius: Theme.radius
}
