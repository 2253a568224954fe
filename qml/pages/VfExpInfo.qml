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

    /// The day of an instrument's date text, and with clock the minute too.
    function dayText(date, clock) {
        var moment = root.convertDateTimeATToLocalTimeString(date || "")
        if (!moment || isNaN(moment))
            return Texts.absent
        return moment.toLocaleDateString(Qt.locale(), Locale.ShortFormat) + (clock ? Qt.formatTime(moment, " hh:mm") : "")
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
