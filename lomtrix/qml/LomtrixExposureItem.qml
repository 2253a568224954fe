// SPDX-License-Identifier: GPL-3.0-or-later
import QtQuick 2.15
import "../../qml/widgets"
import "../../qml/widgets/texts.js" as Texts

/// An exposure component with the field for its exposure time.
Rectangle {
    id: item

    property var columns: []
    property var component: ({})
    property alias time: field.text
    /// What its doses lack to count in the day's.
    readonly property string lack: component.hasDuration ? "" : qsTr("Duration unknown: not counted in the daily VDV")

    signal typed(string time)
    signal wanted()

    function edit() { field.field.forceActiveFocus(Qt.TabFocusReason) }

    function cellText(column) {
        var value = component[column.role]
        return column.text ? Texts.text(value) : Texts.numberText(value, root.numberToLocalString)
    }

    width: ListView.view.width
    height: lack ? 68 : 48
    color: ListView.isCurrentItem ? Theme.quietGround : Theme.ground
    Accessible.role: Accessible.Row
    Accessible.name: columns.map(function (column) { return Texts.plain(column.title) + " " + cellText(column) })
        .concat(lack || []).join(", ")

    Row {
        id: cells

        anchors { left: parent.left; top: parent.top; leftMargin: Theme.spacing - 1 }
        height: 48

        Repeater {
            model: item.columns
            VfElidedText {
                width: modelData.width
                height: parent.height
                rightPadding: Theme.gap
                verticalAlignment: Text.AlignVCenter
                whole: item.cellText(modelData)
            }
        }
        VfClockField {
            id: field

            anchors.verticalCenter: parent.verticalCenter
            description: qsTr("Exposure time") + ": " + item.Accessible.name
            field.activeFocusOnTab: item.ListView.isCurrentItem // one stop among the page's
            keysTo: [item]
            onTextChanged: item.typed(text)
            Component.onCompleted: text = item.component.exposureTime
        }
    }
    VfText {
        anchors { left: cells.left; bottom: parent.bottom; bottomMargin: Theme.gap }
        color: Theme.warning
        font.pixelSize: Theme.smallSize
        text: item.lack
    }
    Rectangle {
        anchors { left: parent.left; right: parent.right; bottom: parent.bottom }
        height: 1
        color: Theme.line
    }
    Connections {
        target: field.field
        function onActiveFocusChanged() { if (field.field.activeFocus) item.wanted() }
    }
}
