// SPDX-License-Identifier: GPL-3.0-or-later
import QtQuick 2.15
import "."

/// The mark around what has the keyboard.
Rectangle {
    property bool shown: false

    anchors { fill: parent; margins: -3 }
    color: "transparent"
    border { width: 2; color: Theme.accent }
    radius: Theme.radius + 2
    visible: shown
}
