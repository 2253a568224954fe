// SPDX-License-Identifier: GPL-3.0-or-later
import QtQuick 2.15
import "."

/// Texts of which one is chosen, as radio buttons below or beside each other.
Grid {
    id: choice

    /// What is chosen, for those who cannot see it.
    property string name
    property var choices: []
    /// What the buttons say where that is not what they choose.
    property var texts: choices
    /// The chosen text; any other text chooses none.
    property string value
    readonly property bool isChosen: choices.indexOf(value) >= 0

    columns: 1
    columnSpacing: Theme.spacing
    rowSpacing: Theme.gap
    Accessible.role: Accessible.Grouping
    Accessible.name: name

    Repeater {
        model: choice.choices
        VfRadioButton {
            checked: choice.value === modelData
            group: choice.name
            text: choice.texts[index]
            onToggled: choice.value = modelData
        }
    }
}
