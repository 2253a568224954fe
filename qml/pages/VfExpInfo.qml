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
    /// [{title, lines}] below them.
    property var groups: []
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
            // A title has a row of the grid for itself, and what stands before it the rest of another.
            model: info.groups.reduce(function (all, group) {
                var rest = new Array((grid.columns - all.length % grid.columns) % grid.columns).fill({})
                return all.concat(rest, { title: group.title }, new Array(grid.columns - 1).fill({}), group.lines)
            }, info.lines)
            VfInfoElement {
                label: modelData.label ? modelData.label + ":" : modelData.title || ""
                maximumWidth: (info.room - 2 * info.padding) / grid.columns - grid.columnSpacing
                value: modelData.label ? Texts.text(modelData.value) : ""
            }
        }
    }
}
