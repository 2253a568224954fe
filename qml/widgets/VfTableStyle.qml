// SPDX-License-Identifier: GPL-3.0-or-later
import QtQuick 2.15
import QtQuick.Controls.Styles 1.4
import "."

/// Ground, bars and corner of a table, which the desktop's style would else paint in its own palette.
TableViewStyle {
    backgroundColor: Theme.ground
    alternateBackgroundColor: Theme.quietGround
    textColor: Theme.text
    highlightedTextColor: Theme.textOnDark
    transientScrollBars: false
    handleOverlap: 0
    minimumHandleLength: 24
    __scrollBarSpacing: 0

    frame: Item {}      // the table has its own, above the head
    corner: Rectangle { color: Theme.quietGround }
    decrementControl: Item {}
    incrementControl: Item {}
    scrollBarBackground: Rectangle {
        implicitWidth: Theme.barWidth
        implicitHeight: Theme.barWidth
        color: Theme.quietGround
    }
    handle: Item {
        implicitWidth: Theme.barWidth
        implicitHeight: Theme.barWidth
        Rectangle {
            anchors { fill: parent; margins: 2 }
            color: styleData.pressed ? Theme.button : styleData.hovered ? Theme.buttonHover : Theme.fieldLine
            radius: width / 2
        }
    }
}
