// SPDX-License-Identifier: GPL-3.0-or-later
import QtQuick 2.15
import QtQuick.Controls 2.15
import "../../qml/widgets"

/// What the instrument computed of each quantity, in three columns.
Flickable {
    id: finals

    property var results: ({})
    property var quantities: []
    readonly property alias items: columns

    boundsBehavior: Flickable.StopAtBounds
    clip: true
    contentHeight: row.implicitHeight
    ScrollBar.vertical: ScrollBar {}

    Row {
        id: row

        anchors.horizontalCenter: parent.horizontalCenter
        spacing: Theme.spacing

        Repeater {
            id: columns

            model: [
                { label: qsTr("Min"), values: finals.results.minList },
                { label: qsTr("Avg"), values: finals.results.averageList },
                { label: qsTr("Max"), values: finals.results.maxList }
            ]
            ZelkResultItem { label: modelData.label; quantities: finals.quantities; values: modelData.values || [] }
        }
    }
}
