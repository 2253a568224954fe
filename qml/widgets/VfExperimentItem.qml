// SPDX-License-Identifier: GPL-3.0-or-later
import QtQuick 2.15
import "."

/// An experiment in an instrument's memory: a text in large type, lines beside it and, where several can be picked, a
/// check box that follows each click.
VfListItem {
    id: item

    property string text
    /// What stands beside it: [{text, width}]; a line without a width takes what it needs.
    property var lines: []
    property bool checkable: false
    property bool checked: false

    description: [text].concat(lines.map(function (line) { return line.text })).join(" ")
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
    }
    Repeater {
        model: item.lines
        VfText {
            anchors.verticalCenter: parent.verticalCenter
            width: modelData.width || implicitWidth
            color: item.textColor
            elide: Text.ElideRight
            text: modelData.text
        }
    }
}
