// SPDX-License-Identifier: GPL-3.0-or-later
import QtQuick 2.15
import "."

/// A text that is followed like a link.
VfText {
    id: link

    signal activated()

    activeFocusOnTab: true
    color: Theme.accent
    font.underline: area.containsMouse || activeFocus
    Keys.onReturnPressed: activated()
    Keys.onSpacePressed: activated()
    Accessible.role: Accessible.Link
    Accessible.name: text
    Accessible.onPressAction: activated()

    MouseArea {
        id: area

        anchors.fill: parent
        cursorShape: Qt.PointingHandCursor
        hoverEnabled: true
        onClicked: link.activated()
    }
}
