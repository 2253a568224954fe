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
            if (i < columnCount)
                Object.assign(getColumn(i), column)
            else
                addColumn(added.createObject(table, column)) // one without a width would take that of the table
        })
    }

    cellText: function (row, role) {
        return role === "date" ? Texts.timeText(root.convertDateTimeATToLocalTimeString(row.date))
                               : Texts.numberText(reading(row)[role], root.numberToLocalString)
    }
    onColumnsChanged: if (columnCount > 0) lay()
    Component.onCompleted: lay() // a table still being made would take its columns twice

    Component { id: added; VfTableViewColumn {} }
}
