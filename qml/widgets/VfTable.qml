// SPDX-License-Identifier: GPL-3.0-or-later
import QtQuick 2.15
import QtQuick.Controls 1.4 as C1
import "."
import "texts.js" as Texts

/// A table over rows of any length, a JS array or what answers as one by length and at(place): its model is the number of
/// rows, and only what is on screen is made into text.
C1.TableView {
    id: table

    property var rows: []
    /// The text of the cell in a column, told by its role and its place; a page replaces it. The titles of the columns are
    /// markup.
    property var cellText: function (row, role, place) { return Texts.text(row[role]) }
    /// The width of the columns, without the bar beside them.
    readonly property real columnsWidth: {
        var sum = 0
        for (var i = 0; i < columnCount; ++i)
            sum += getColumn(i).visible ? getColumn(i).width : 0
        return sum
    }

    /// What the frame, and the bar if there is one, take beside the columns.
    readonly property real barWidth: 2 + (barNeeded ? Theme.barWidth : 0)
    readonly property bool barNeeded: headHeight + rowCount * rowHeight > height - 2
    readonly property int headHeight: 30
    readonly property int rowHeight: 24

    function rowAt(place) { return rows.at ? rows.at(place) : rows[place] }

    function show(list) {
        currentRow = -1
        model = 0
        rows = list
        model = list.length
        // A table that is filled out of sight is laid out when it comes into sight; only then it knows of its head.
        Qt.callLater(__listView.positionViewAtBeginning)
    }

    /// What a row says, column by column.
    function rowText(place) {
        var row = rowAt(place), parts = []
        for (var i = 0; row !== undefined && i < columnCount; ++i)
            if (getColumn(i).visible)
                parts.push(Texts.plain(getColumn(i).title) + " " + cellText(row, getColumn(i).role, i))
        return parts.join(", ")
    }

    style: VfTableStyle {}
    frameVisible: true
    backgroundVisible: false
    selectionMode: C1.SelectionMode.SingleSelection
    horizontalScrollBarPolicy: columnsWidth > viewport.width ? Qt.ScrollBarAsNeeded : Qt.ScrollBarAlwaysOff
    verticalScrollBarPolicy: barNeeded ? Qt.ScrollBarAlwaysOn : Qt.ScrollBarAlwaysOff
    onActiveFocusChanged: if (activeFocus && currentRow < 0 && rowCount > 0) currentRow = 0
    Accessible.role: Accessible.Table
    Accessible.name: rowCount + " " + qsTr("rows")

    headerDelegate: Rectangle {
        height: table.headHeight
        clip: title.implicitWidth > width
        color: Theme.quietGround
        Accessible.role: Accessible.ColumnHeader
        Accessible.name: Texts.plain(styleData.value)
        Text {
            id: title

            x: Math.max(4, (parent.width - implicitWidth) / 2)
            anchors.verticalCenter: parent.verticalCenter
            color: Theme.text
            font { family: fontSans.name; pixelSize: 12; bold: true }
            textFormat: Text.RichText
            text: styleData.value
        }
        Rectangle { anchors { right: parent.right; top: parent.top; bottom: parent.bottom } width: 1; color: Theme.line }
    }
    rowDelegate: Rectangle {
        height: table.rowHeight
        color: styleData.selected ? Theme.accent : styleData.alternate ? Theme.quietGround : Theme.ground
        Accessible.role: Accessible.Row
        Accessible.name: styleData.row === undefined ? "" : table.rowText(styleData.row)
        Accessible.selectable: true
        Accessible.selected: styleData.selected
    }
    itemDelegate: Item {
        // The rows can be fewer than the model for the moment in which it shrinks.
        readonly property var row: table.rowAt(styleData.row)
        Text {
            anchors.fill: parent
            color: styleData.selected ? Theme.textOnDark : Theme.text
            elide: Text.ElideRight
            font { family: fontSans.name; pixelSize: Theme.smallSize }
            horizontalAlignment: styleData.textAlignment
            text: parent.row === undefined ? "" : table.cellText(parent.row, styleData.role, styleData.column)
            textFormat: Text.PlainText
            verticalAlignment: Text.AlignVCenter
            wrapMode: Text.Wrap
        }
    }

    VfSpoken {
        active: table.activeFocus
        keysTo: [table.__listView]
        text: active ? table.rowText(table.currentRow) : ""
    }
    Rectangle {
        anchors.fill: parent
        border { width: table.activeFocus ? 2 : 1; color: table.activeFocus ? Theme.accent : Theme.line }
        color: "transparent"
        z: 1
    }
}
