// SPDX-License-Identifier: GPL-3.0-or-later
import QtQuick 2.15
import "../../qml/widgets"
import "../../qml/widgets/texts.js" as Texts

/// A schedule in the list, and the button that takes it away.
VfListItem {
    id: item

    readonly property var schedule: modelData
    /// [{title, role, width}]
    property var columns: []

    signal removed()

    function cell(column) { return schedule ? Texts.text(String(schedule[column.role])) : "" }

    implicitHeight: 34
    description: columns.map(function (column) { return column.title + ": " + cell(column) }).join(", ")

    Repeater {
        model: item.columns
        VfElidedText {
            anchors.verticalCenter: parent.verticalCenter
            width: modelData.width
            color: item.textColor
            whole: item.cell(modelData)
        }
    }
    MyButton {
        anchors.verticalCenter: parent.verticalCenter
        implicitWidth: 80
        implicitHeight: 26
        buttonLabel: qsTr("Delete")
        focusPolicy: Qt.NoFocus // the list has the key for it
        onMyButtonclicked: item.removed()
    }
}
