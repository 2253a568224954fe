// SPDX-License-Identifier: GPL-3.0-or-later
import QtQuick 2.15
import QtQuick.Controls 2.15
import "."

/// A rectangle button.
AbstractButton {
    id: button

    property string buttonLabel
    /// Whether it destroys something.
    property bool dangerous: false
    readonly property alias color: face.color

    signal myButtonclicked()

    implicitWidth: Math.max(120, caption.implicitWidth + 32)
    implicitHeight: Theme.controlHeight
    hoverEnabled: true
    onClicked: myButtonclicked()
    Keys.onReturnPressed: myButtonclicked()
    Keys.onEnterPressed: myButtonclicked()
    Accessible.role: Accessible.Button
    Accessible.name: buttonLabel

    background: Rectangle {
        id: face

        color: !button.enabled ? Theme.buttonDisabled : button.dangerous ? Qt.darker(Theme.warning, button.pressed ? 1.5 : button.hovered ? 0.85 : 1)
             : button.pressed ? Theme.buttonPressed : button.hovered ? Theme.buttonHover : Theme.button
        radius: Theme.radius

        FocusFrame { shown: button.visualFocus }
    }
    contentItem: VfText {
        id: caption

        text: button.buttonLabel
        color: Theme.textOnDark
        horizontalAlignment: Text.AlignHCenter
        verticalAlignment: Text.AlignVCenter
        elide: Text.ElideRight
    }
}
