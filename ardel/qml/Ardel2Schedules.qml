// SPDX-License-Identifier: GPL-3.0-or-later
import QtQuick 2.15
import "../../qml/widgets"
import "../../qml/pages"

/// The schedules of the dosimeter as they are being edited; "Apply" writes all of them to the instrument.
VfConfigurationBody {
    id: body

    readonly property alias entry: entry
    readonly property alias table: table

    function collected() { return { scheduleList: core.virtualSchedulelist } }

    productName: "ARDEL 2"
    erases: false
    note: qsTr("The list is stored in the instrument by \"Apply\", which enables it.")

    Item {
        width: parent.width
        height: parent.height

        Ardel2ScheduleConfig {
            id: entry

            width: parent.width
            onTold: body.warning = message
        }
        Ardel2ScheduleTable {
            id: table

            anchors {
                left: parent.left; right: parent.right; top: entry.bottom; bottom: parent.bottom
                topMargin: Theme.spacing
            }
        }
    }
}
