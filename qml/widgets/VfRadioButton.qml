// SPDX-License-Identifier: GPL-3.0-or-later
import QtQuick 2.15
import QtQuick.Controls 2.15
import "."

/// A radio button in the suite's look.
RadioButton {
    id: button

    /// What is chosen, for those who cannot see it.
    property string group

    font { family: fontSans.name; pixelSize: Theme.fontSize }
    spacing: Theme.gap
    Keys.onReturnPressed: checked = true
    Keys.onEnterPressed: checked = true
    Accessible.role: Accessible.RadioButton
    Accessible.name: group ? group + ": " + text : text
    Accessible.checked: checked

    indicator: Rectangle {
        x: button.leftPadding
        anchors.verticalCenter: parent.verticalCenter
        width: 18
        height: 18
        radius: 9
        color: Theme.ground
        border {
            width: button.visualFocus ? 2 : 1
            color: button.visualFocus ? Theme.accent : button.hovered ? Theme.text : Theme.fieldLine
        }
        Rectangle {
            anchors.centerIn: parent
            width: 10
            height: 10
            radius: 5
            color: Theme.accent
            visible: button.checked
        }
    }
    contentItem: VfText {
        leftPadding: button.indicator.width + button.spacing
        text: button.text
        verticalAlignment: Text.AlignVCenter
    }
}
