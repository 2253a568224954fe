// SPDX-License-Identifier: GPL-3.0-or-later
import QtQuick 2.15
import QtQuick.Controls 2.15
import "."

/// A line of text to type, as compact as a check box.
TextField {
    id: field

    height: 26
    color: Theme.text
    font { family: fontSans.name; pixelSize: Theme.smallSize }
    leftPadding: 6
    placeholderTextColor: Theme.quietText
    selectByMouse: true
    selectedTextColor: Theme.textOnDark
    selectionColor: Theme.accent
    topPadding: 2
    bottomPadding: 2
    Accessible.role: Accessible.EditableText
    background: Rectangle {
        color: field.enabled && !field.readOnly ? Theme.ground : Theme.quietGround
        border { width: field.activeFocus ? 2 : 1; color: field.activeFocus ? Theme.accent : Theme.fieldLine }
        radius: Theme.radius
    }
}
