// SPDX-License-Identifier: GPL-3.0-or-later
import QtQuick 2.15
import "."
import "texts.js" as Texts

/// The records of an experiment: their hour and their values, made into text as they come on screen.
VfTable {
    id: table

    /// [{role, title, width}] behind the hour; a title is markup. Titles may change, the number of columns stays.
    property var columns: []
    /// The part of a record that has the values.
    property var reading: function (record) { return record }

    function lay() {
        [{ role: "date", title: qsTr("Hour"), width: 85 }].concat(columns).forEach(function (column, i) {
            Object.assign(getColumn(i) || addColumn(added), column)
        })
    }

    cellText: function (row, role) {
        return role === "date" ? Texts.timeText(root.convertDateTimeATToLocalTimeString(row.date))
                               : Texts.numberText(reading(row)[role], root.numberToLocalString)
    }
    onColumnsChanged: lay()

    Component { id: added; VfTableViewColumn {} }
}
