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
    /// The same in rows beside the lines.
    property var beside: []
    readonly property real besideWidth: beside.length > 0 ? Math.max(365, Math.min(560, room - 500)) : 0
    readonly property var timeWeightings: ({ Slow: qsTr("Slow (S)"), Fast: qsTr("Fast (F)"), Impulse: qsTr("Impulse (I)") })
    /// What the page has beside its buttons.
    property real room: 900

    /// The day of an instrument's date text, and with clock the minute too.
    function dayText(date, clock) {
        var moment = root.convertDateTimeATToLocalTimeString(date || "")
        if (!moment || isNaN(moment))
            return Texts.absent
        return moment.toLocaleDateString(Qt.locale(), Locale.ShortFormat) + (clock ? Qt.formatTime(moment, " hh:mm") : "")
    }

    /// A field check of a noise instrument with its date, which is empty without one.
    function check(level, date, clock) {
        return date ? Texts.numberText(level, root.numberToLocalString) + " (" + dayText(date, clock) + ")" : Texts.absent
    }

    Row {
        spacing: 32

        Grid {
            id: grid

            columns: info.beside.length > 0 ? 2 : 3
            columnSpacing: parent.spacing
            rowSpacing: 6

            Repeater {
                // A title has a row of the grid for itself, and what stands before it the rest of another.
                model: info.groups.reduce(function (all, group) {
                    var rest = new Array((grid.columns - all.length % grid.columns) % grid.columns).fill({})
                    return all.concat(rest, { title: group.title }, new Array(grid.columns - 1).fill({}), group.lines)
                }, info.lines)
                VfInfoElement {
                    width: Math.max(1, implicitWidth)   // nothing would take no cell of the grid
                    height: Math.max(1, implicitHeight)
                    label: modelData.label ? modelData.label + ":" : modelData.title || ""
                    maximumWidth: (info.room - 2 * info.padding - info.besideWidth) / grid.columns - grid.columnSpacing
                    value: modelData.label ? Texts.text(modelData.value) : ""
                }
            }
        }
        Column {
            spacing: grid.rowSpacing
            visible: info.beside.length > 0

            Repeater {
                model: info.beside
                Row {
                    readonly property var group: modelData

                    Accessible.role: Accessible.Grouping
                    Accessible.name: group.title
                    VfText { width: 110; color: Theme.quietText; font.bold: true; text: parent.group.title }
                    Repeater {
                        model: parent.group.lines
                        Item {
                            width: (info.besideWidth - 110) / parent.group.lines.length
                            height: line.implicitHeight
                            VfInfoElement {
                                id: line

                                label: modelData.label + ":"
                                maximumWidth: parent.width - 6
                                value: Texts.text(modelData.value)
                            }
                        }
                    }
                }
            }
        }
    }
}
