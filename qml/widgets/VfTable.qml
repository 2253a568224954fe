// SPDX-License-Identifier: GPL-3.0-or-later
import QtQuick 2.15
import QtQuick.Controls 1.4 as C1
import "."
import "texts.js" as Texts

/// A table over a JS array of any length: its model is the number of rows, and only what is on screen is made into text.
C1.TableView {
    id: table

    property var rows: []
    /// The text of a cell; a page replaces it. The titles of the columns are markup.
    property var cellText: function (row, role) { return Texts.text(row[role]) }
    /// The width of the columns, without the bar beside them.
    readonly property real columnsWidth: {
        var sum = 0
        for (var i = 0; i < columnCount; ++i)
            sum += getColumn(i).width
        return sum
    }

    /// What the bar and the frame take beside the columns.
    readonly property real barWidth: 24

    function show(list) {
        model = 0
        rows = list
        model = list.length
        if (list.length > 0)
            positionViewAtRow(0, ListView.Beginning)
    }

    frameVisible: true
    backgroundVisible: false
    selectionMode: C1.SelectionMode.SingleSelection
    horizontalScrollBarPolicy: columnsWidth > viewport.width ? Qt.ScrollBarAsNeeded : Qt.ScrollBarAlwaysOff
    Accessible.role: Accessible.Table

    headerDelegate: Rectangle {
        height: 30
        color: Theme.quietGround
        Text {
            anchors.centerIn: parent
            color: Theme.text
            font { family: fontSans.name; pixelSize: 12; bold: true }
            textFormat: Text.RichText
            text: styleData.value
        }
        Rectangle { anchors { right: parent.right; top: parent.top; bottom: parent.bottom } width: 1; color: Theme.line }
    }
    rowDelegate: Rectangle {
        height: 24
        color: styleData.selected ? Theme.accent : styleData.alternate ? Theme.quietGround : Theme.ground
    }
    itemDelegate: Item {
        // The rows can be fewer than the model for the moment in which it shrinks.
        readonly property var row: table.rows[styleData.row]
        Text {
            anchors.fill: parent
            color: styleData.selected ? Theme.textOnDark : Theme.text
            elide: Text.ElideRight
            font { family: fontSans.name; pixelSize: Theme.smallSize }
            horizontalAlignment: styleData.textAlignment
            text: parent.row === undefined ? "" : table.cellText(parent.row, styleData.role)
            textFormat: Text.PlainText
            verticalAlignment: Text.AlignVCenter
            wrapMode: Text.Wrap
        }
    }
}
