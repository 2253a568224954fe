// SPDX-License-Identifier: GPL-3.0-or-later
import QtQuick 2.15
import QtQuick.Controls 2.15
import "../widgets"

/// A group of a report's boxes: its head box, if the group has a key, and the boxes that hang on it. A box may have a text
/// beside it.
Column {
    id: boxes

    /// {title, key, boxes: [{key, label, text}], most, tooMany}: with more than most boxes on, tooMany is told.
    property var group: ({ boxes: [] })
    /// What is on, and what was typed, by key; and the keys of what cannot be on.
    property var values: ({})
    property var withheld: []
    /// Whether the title stands above boxes without a head box.
    property bool captioned: false
    readonly property bool headed: group.key !== undefined
    readonly property bool tooMany: values[group.key] === true
        && group.boxes.filter(function (box) { return values[box.key] === true }).length > group.most

    signal toggled(string key, bool on)
    signal edited(string key, string text)

    function isFree(key) { return withheld.indexOf(key) < 0 }

    VfCheckBox {
        checked: boxes.values[boxes.group.key] === true
        enabled: boxes.isFree(boxes.group.key)
        font.bold: true
        text: boxes.group.title
        visible: boxes.headed
        onToggled: boxes.toggled(boxes.group.key, checked)
    }
    VfText {
        height: 24
        font { pixelSize: Theme.smallSize; bold: true }
        text: boxes.group.title || ""
        verticalAlignment: Text.AlignVCenter
        visible: boxes.captioned && !boxes.headed
    }
    Flickable {
        id: room

        /// Brings a row into sight.
        function show(row) { contentY = Math.max(Math.min(contentY, row.y), row.y + row.height - height) }

        width: list.implicitWidth + (interactive ? Theme.barWidth : 0)
        height: Math.min(list.implicitHeight, 9 * 24)
        boundsBehavior: Flickable.StopAtBounds
        clip: interactive
        contentHeight: list.implicitHeight
        interactive: contentHeight > height
        ScrollBar.vertical: ScrollBar { policy: room.interactive ? ScrollBar.AlwaysOn : ScrollBar.AlwaysOff }

        Column {
            id: list

            Repeater {
                model: boxes.group.boxes
                Row {
                    spacing: Theme.gap

                    VfCheckBox {
                        id: box

                        anchors.verticalCenter: parent.verticalCenter
                        checked: boxes.values[modelData.key] === true
                        enabled: boxes.isFree(modelData.key) && (!boxes.headed || boxes.values[boxes.group.key] === true)
                        group: boxes.group.title
                        leftPadding: boxes.headed ? 20 : 2
                        text: modelData.label
                        onActiveFocusChanged: if (activeFocus) room.show(parent)
                        onToggled: boxes.toggled(modelData.key, checked)
                    }
                    Loader {
                        active: modelData.text !== undefined
                        visible: active
                        sourceComponent: VfTextField {
                            width: 180
                            enabled: box.checked && box.enabled
                            Accessible.name: box.Accessible.name
                            onTextChanged: boxes.edited(modelData.text, text)
                        }
                    }
                }
            }
        }
    }
    VfText {
        width: Math.max(room.width, 190)
        color: Theme.warning
        font.pixelSize: Theme.smallSize
        opacity: boxes.tooMany ? 1 : 0 // keeps its place
        text: boxes.group.tooMany || ""
        visible: boxes.group.boxes.length > boxes.group.most
        wrapMode: Text.Wrap
        Accessible.role: Accessible.AlertMessage
        Accessible.name: boxes.tooMany ? text : ""
    }
}
