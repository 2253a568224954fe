// SPDX-License-Identifier: GPL-3.0-or-later
import QtQuick 2.15
import "../../qml/widgets"
import "../../qml/widgets/texts.js" as Texts

/// The data of a heat-stress experiment, in a framed grid; a family may put lines of its own in front.
VfFrame {
    id: info

    property var experiment: ({})
    /// Lines of the family: [{label, value}].
    property var ownLines: []
    /// What the page has beside its buttons.
    property real room: 900
    readonly property var results: experiment.results || {}

    function date() {
        var day = root.convertDateTimeATToLocalTimeString(experiment.date || "")
        return day && !isNaN(day) ? day.toLocaleDateString(Qt.locale(), Locale.ShortFormat) : Texts.absent
    }

    Grid {
        id: grid

        columns: 3
        columnSpacing: 32
        rowSpacing: 6

        Repeater {
            model: [
                { label: qsTr("Event") + ":", value: info.experiment.eventIndex },
                { label: qsTr("Date") + ":", value: info.date() },
                { label: qsTr("Exp time") + ":", value: info.results.duration },
                { label: qsTr("Pause time") + ":", value: info.results.pauseTime },
                { label: qsTr("Sample time") + " [s]:", value: info.results.sampleTime }
            ].concat(info.ownLines)
            VfInfoElement {
                label: modelData.label
                maximumWidth: (info.room - 2 * info.padding) / grid.columns - grid.columnSpacing
                value: Texts.text(modelData.value)
            }
        }
    }
}
