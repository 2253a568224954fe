// SPDX-License-Identifier: GPL-3.0-or-later
import QtQuick 2.15
import QtQuick.Controls 2.15
import "."

/// A text field with its label in front.
Row {
    id: input

    property string label
    /// What the field is for, to those who cannot see it.
    property string description: label
    /// At least so wide is the label, so that fields below each other begin in one line.
    property real labelWidth: 0
    property alias text: field.text
    property alias maximumLength: field.maximumLength
    property alias validator: field.validator
    property alias inputMask: field.inputMask
    property alias readOnly: field.readOnly
    property alias placeholderText: field.placeholderText
    property alias fieldWidth: field.width
    readonly property alias field: field
    /// Who gets the keys before the field.
    property list<Item> keysTo

    spacing: Theme.gap

    VfText {
        anchors.verticalCenter: parent.verticalCenter
        width: Math.max(implicitWidth, input.labelWidth)
        text: input.label
        visible: input.label !== ""
    }

    TextField {
        id: field

        width: 160
        height: Theme.controlHeight
        color: Theme.text
        font { family: fontSans.name; pixelSize: Theme.fontSize }
        placeholderTextColor: Theme.quietText
        selectByMouse: true
        selectedTextColor: Theme.textOnDark
        selectionColor: Theme.accent
        Keys.forwardTo: input.keysTo
        Accessible.role: Accessible.EditableText
        Accessible.name: input.description
        background: Rectangle {
            color: field.readOnly ? Theme.quietGround : Theme.ground
            border { width: field.activeFocus ? 2 : 1; color: field.activeFocus ? Theme.accent : Theme.fieldLine }
            radius: Theme.radius
        }
    }
}
