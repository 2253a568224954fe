// SPDX-License-Identifier: GPL-3.0-or-later
import QtQuick 2.15
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

    VfTextField {
        id: field

        anchors { left: box.right; right: parent.right; verticalCenter: parent.verticalCenter }
        enabled: box.checked
        onTextChanged: input.edited(text)
        Accessible.name: box.Accessible.name
    }
}
