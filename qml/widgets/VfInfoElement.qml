// SPDX-License-Identifier: GPL-3.0-or-later
import QtQuick 2.15
import "."

/// A label with its value.
Row {
    id: element

    property string label
    property string value
    property real maximumWidth: 400
    property color valueColor: Theme.text

    spacing: 6
    Accessible.role: Accessible.StaticText
    Accessible.name: label + " " + value

    VfText { id: caption; text: element.label; color: Theme.quietText }
    VfElidedText {
        width: Math.min(implicitWidth, element.maximumWidth - caption.width - element.spacing)
        color: element.valueColor
        font.bold: true
        whole: element.value
    }
}
