// SPDX-License-Identifier: GPL-3.0-or-later
import QtQuick 2.15
import "."

/// A button of a spin box.
Rectangle {
    id: button

    property bool pressed
    property bool hovered
    property string sign

    implicitWidth: Theme.controlHeight
    height: parent.height
    border { width: 1; color: Theme.fieldLine }
    color: pressed ? Theme.line : hovered ? Theme.quietGround : Theme.ground
    radius: Theme.radius

    VfText {
        anchors.centerIn: parent
        color: button.enabled ? Theme.text : Theme.line
        font.bold: true
        text: button.sign
    }
}
