// SPDX-License-Identifier: GPL-3.0-or-later
import QtQuick 2.15
import "."

/// An experiment in an instrument's memory: a text in large type, lines beside it and, in a list that lets pick several, a
/// check box. What is picked is known to the list, for items go and come as it is scrolled.
VfListItem {
    id: item

    property string text
    /// What was measured: a picture, a cross where none is known, and a word for those who cannot see it.
    property string picture
    property string kind
    /// What stands beside it: [{text, width}]; a line without a width takes what it needs.
    property var lines: []
    property bool checkable: ListView.view !== null && ListView.view.checkable === true
    property bool checked: checkable && ListView.view.picked.indexOf(index) >= 0

    description: [text].concat(kind || [], lines.map(function (line) { return line.text })).join(" ")
    Accessible.checkable: checkable
    Accessible.checked: checked

    VfCheckBox {
        anchors.verticalCenter: parent.verticalCenter
        checked: item.checked
        focusPolicy: Qt.NoFocus
        visible: item.checkable
        onToggled: item.click()
    }
    VfElidedText {
        anchors.verticalCenter: parent.verticalCenter
        width: Math.max(56, Math.min(120, implicitWidth))
        color: item.textColor
        font { pixelSize: Theme.largeSize; bold: true }
        whole: item.text
    }
    Rectangle {
        anchors.verticalCenter: parent.verticalCenter
        width: 44
        height: 44
        color: Theme.ground     // also where the item is selected, for pictures are made for it
        radius: Theme.radius
        visible: item.picture !== ""
        Image {
            anchors { fill: parent; margins: 2 }
            mipmap: true    // shown smaller than it is, on most displays
            source: item.picture
        }
    }
    VfText {
        anchors.verticalCenter: parent.verticalCenter
        width: 44
        color: item.textColor
        font.pixelSize: Theme.largeSize
        horizontalAlignment: Text.AlignHCenter
        text: "\u2715"
        visible: item.kind !== "" && item.picture === ""
    }
    Repeater {
        model: item.lines
        VfElidedText {
            anchors.verticalCenter: parent.verticalCenter
            width: Math.max(0, Math.min(modelData.width || implicitWidth, item.room - x))
            color: item.textColor
            whole: modelData.text
        }
    }
}
