// SPDX-License-Identifier: GPL-3.0-or-later
import QtQuick 2.15
import QtQuick.Controls 2.15
import "."

/// A button that is one of three images: at rest, below the pointer, pressed.
AbstractButton {
    id: button

    property url imgbtnpicdef
    property url imgbtnpichover
    property url imgbtnpicclicked
    /// What it does, for those who cannot see the image.
    property string label

    signal myImgBtnClicked()

    hoverEnabled: true
    onClicked: myImgBtnClicked()
    Keys.onReturnPressed: myImgBtnClicked()
    Keys.onEnterPressed: myImgBtnClicked()
    Accessible.role: Accessible.Button
    Accessible.name: label
    ToolTip.visible: hovered && label !== ""
    ToolTip.delay: 800
    ToolTip.text: label

    contentItem: Image {
        source: button.pressed ? button.imgbtnpicclicked : button.hovered ? button.imgbtnpichover : button.imgbtnpicdef
    }
    background: Item {
        FocusFrame { shown: button.visualFocus }
    }
}
