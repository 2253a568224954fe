// SPDX-License-Identifier: GPL-3.0-or-later
import QtQuick 2.15
import "../widgets"

/// A group of a report's boxes: its head box, if the group has a key, and the boxes that hang on it.
Column {
    id: boxes

    /// {title, key, boxes: [{key, label}]}
    property var group: ({ boxes: [] })
    /// What is on, by key.
    property var values: ({})
    readonly property bool headed: group.key !== undefined

    signal toggled(string key, bool on)

    VfCheckBox {
        checked: boxes.values[boxes.group.key] === true
        font.bold: true
        text: boxes.group.title
        visible: boxes.headed
        onToggled: boxes.toggled(boxes.group.key, checked)
    }
    Repeater {
        model: boxes.group.boxes
        VfCheckBox {
            checked: boxes.values[modelData.key] === true
            enabled: !boxes.headed || boxes.values[boxes.group.key] === true
            group: boxes.group.title
            leftPadding: boxes.headed ? 20 : 2
            text: modelData.label
            onToggled: boxes.toggled(modelData.key, checked)
        }
    }
}
