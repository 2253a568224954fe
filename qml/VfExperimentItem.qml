// SPDX-License-Identifier: GPL-3.0-or-later
import QtQuick 2.15
import "."

/// An experiment in an instrument's memory: a text in large type, lines beside it and, where several can be picked, a
/// check box that follows each click.
VfListItem {
    id: item

    property string text
    property var lines: []
    property bool checkable: false
    property bool checked: false

    description: [text].concat(lines).join(" ")
    onItemClicked: if (checkable) checked = !checked
    Accessible.checkable: checkable
    Accessible.checked: checked

    VfCheckBox {
        anchors.verticalCenter: parent.verticalCenter
        checked: item.checked
        focusPolicy: Qt.NoFocus
        visible: item.checkable
        onToggled: item.click()
    }
    VfText {
        anchors.verticalCenter: parent.verticalCenter
        width: Math.max(56, implicitWidth)
        color: item.textColor
        font { pixelSize: Theme.largeSize; bold: true }
        text: item.text
        textFormat: Text.PlainText
    }
    Repeater {
        model: item.lines
        VfText {
            anchors.verticalCenter: parent.verticalCenter
            color: item.textColor
            text: modelData
            textFormat: Text.PlainText
        }
    }
}
