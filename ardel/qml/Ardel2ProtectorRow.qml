// SPDX-License-Identifier: GPL-3.0-or-later
import QtQuick 2.15
import "../../qml/widgets"

/// A number for each octave: levels, or what can be typed.
Row {
    id: row

    property string label
    property var names: []
    /// The levels, NaN for one that is not there; undefined for numbers to type.
    property var levels: undefined

    signal edited()

    function numbers() {
        return names.map(function (name, i) { return fields.itemAt(i).value })
    }

    spacing: Theme.gap

    VfText { width: 130; anchors.verticalCenter: parent.verticalCenter; text: row.label }
    Repeater {
        id: fields

        model: row.names
        Ardel2ProtectorField {
            id: field

            width: 90
            readOnly: row.levels !== undefined
            onTextEdited: row.edited()
            Accessible.name: row.label + " " + modelData

            Binding {
                target: field
                property: "value"
                value: field.readOnly && row.levels.length > index ? row.levels[index] : NaN
                when: field.readOnly
            }
        }
    }
}
