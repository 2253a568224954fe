// SPDX-License-Identifier: GPL-3.0-or-later
import QtQuick 2.15
import "../widgets"
import "../widgets/texts.js" as Texts

/// The data of an experiment in a framed grid, line by line.
VfFrame {
    id: info

    property var experiment: ({})
    readonly property var results: experiment.results || {}
    /// [{label, value}]: a value that is not there is told so.
    property var lines: []
    /// What the page has beside its buttons.
    property real room: 900

    /// An instrument's date text as a day, or as a moment.
    function dayText(date) { return read(date, "toLocaleDateString") }
    function momentText(date) { return read(date, "toLocaleString") }

    function read(date, conversion) {
        var moment = root.convertDateTimeATToLocalTimeString(date || "")
        return moment && !isNaN(moment) ? moment[conversion](Qt.locale(), Locale.ShortFormat) : Texts.absent
    }

    Grid {
        id: grid

        columns: 3
        columnSpacing: 32
        rowSpacing: 6

        Repeater {
            model: info.lines
            VfInfoElement {
                label: modelData.label + ":"
                maximumWidth: (info.room - 2 * info.padding) / grid.columns - grid.columnSpacing
                value: Texts.text(modelData.value)
            }
        }
    }
}
