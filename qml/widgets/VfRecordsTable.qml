// SPDX-License-Identifier: GPL-3.0-or-later
import QtQuick 2.15
import "."
import "texts.js" as Texts

/// The records of an experiment: their hour and their values, made into text as they come on screen.
VfTable {
    id: table

    /// [{role, title, width}] behind the hour; a title is markup.
    property var columns: []
    /// The part of a record that has the values, and the value of a column in it, told by its role and its place.
    property var reading: function (record) { return record }
    property var cellOf: function (part, role, place) { return part[role] }

    /// Columns that are not needed are hidden: others may need them again.
    function lay() {
        var all = [{ role: "date", title: qsTr("Hour"), width: 85 }].concat(columns)
        if (all.length > columnCount)
            model = 0
        all.forEach(function (column, i) {
            if (i < columnCount)
                Object.assign(getColumn(i), column)
            else
                addColumn(added.createObject(table, column)) // one without a width would take that of the table
        })
        for (var i = 0; i < columnCount; ++i)
            getColumn(i).visible = i < all.length
    }

    cellText: function (row, role, place) {
        return role === "date" && !place ? Texts.timeText(root.convertDateTimeATToLocalTimeString(row.date))
                                         : Texts.numberText(cellOf(reading(row), role, place - 1), root.numberToLocalString)
    }
    onColumnsChanged: if (columnCount > 0) lay()
    Component.onCompleted: lay() // a table still being made would take its columns twice

    Component { id: added; VfTableViewColumn {} }
}
