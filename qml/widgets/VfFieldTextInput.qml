// SPDX-License-Identifier: GPL-3.0-or-later
import QtQuick 2.15
import QtQuick.Controls 2.15
import "."

/// A text of a report, with the box that says whether it is printed.
Item {
    id: input

    property string label
    /// What the text is about, for those who cannot see it.
    property string group
    property alias checked: box.checked
    property alias text: field.text
    property alias placeholderText: field.placeholderText
    property real labelWidth: 120

    signal toggled(bool on)
    signal edited(string text)

    implicitHeight: 28
    implicitWidth: 340

    VfCheckBox {
        id: box

        anchors.verticalCenter: parent.verticalCenter
        group: input.group
        text: input.label
        width: input.labelWidth + 28
        onToggled: input.toggled(checked)
    }

    TextField {
        id: field

        anchors { left: box.right; right: parent.right; verticalCenter: parent.verticalCenter }
        height: 26
        color: Theme.text
        enabled: box.checked
        font { family: fontSans.name; pixelSize: Theme.smallSize }
        leftPadding: 6
        placeholderTextColor: Theme.quietText
        selectByMouse: true
        selectedTextColor: Theme.textOnDark
        selectionColor: Theme.accent
        topPadding: 2
        bottomPadding: 2
        onTextChanged: input.edited(text)
        Accessible.name: box.Accessible.name
        Accessible.role: Accessible.EditableText
        background: Rectangle {
            color: field.enabled ? Theme.ground : Theme.quietGround
            border { width: field.activeFocus ? 2 : 1; color: field.activeFocus ? Theme.accent : Theme.fieldLine }
            radius: Theme.radius
        }
    }
}
