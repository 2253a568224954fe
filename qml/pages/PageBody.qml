// SPDX-License-Identifier: GPL-3.0-or-later
import QtQuick 2.15
import "../widgets"

/// The inside of a page that is a list and what can be done with it: content on the left, buttons in a column beside it.
Item {
    default property alias content: main.data
    property alias actions: buttons.data

    Item {
        id: body

        anchors {
            top: parent.top; bottom: parent.bottom; horizontalCenter: parent.horizontalCenter
            topMargin: Theme.pageTop; bottomMargin: 2 * Theme.margin + Theme.spacing
        }
        width: Math.min(parent.width - 2 * Theme.margin, 1080)

        Item {
            id: main

            anchors {
                left: parent.left; right: buttons.left; top: parent.top; bottom: parent.bottom
                rightMargin: Theme.margin
            }
        }
        Column {
            id: buttons

            anchors { right: parent.right; top: parent.top }
            spacing: Theme.gap * 1.5
        }
    }
}
