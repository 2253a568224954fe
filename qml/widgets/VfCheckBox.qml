// SPDX-License-Identifier: GPL-3.0-or-later
import QtQuick 2.15
import QtQuick.Controls 2.15
import "."

/// A compact check box.
CheckBox {
    id: box

    /// What it belongs to, for those who cannot see it; others may have the same text.
    property string group

    padding: 2
    spacing: 8
    implicitHeight: 24
    font { family: fontSans.name; pixelSize: Theme.smallSize }
    opacity: enabled ? 1 : 0.5
    Accessible.role: Accessible.CheckBox
    Accessible.name: group ? group + ": " + text : text
    Accessible.checked: checked
    Keys.onReturnPressed: { toggle(); toggled() }
    Keys.onEnterPressed: { toggle(); toggled() }

    indicator: Rectangle {
        x: box.leftPadding
        y: (box.height - height) / 2
        width: 16
        height: 16
        radius: 2
        color: box.checked ? Theme.accent : Theme.ground
        border { width: 1; color: box.hovered ? Theme.text : Theme.fieldLine }
        Text {
            anchors.centerIn: parent
            color: Theme.textOnDark
            font { pixelSize: 13; bold: true }
            text: "\u2713"
            visible: box.checked
        }
        FocusFrame { shown: box.visualFocus }
    }
    contentItem: VfText {
        leftPadding: box.text ? box.indicator.width + box.spacing : box.indicator.width
        font: box.font
        text: box.text
        verticalAlignment: Text.AlignVCenter
    }
}
