// SPDX-License-Identifier: GPL-3.0-or-later
import QtQuick 2.15
import "../../qml/widgets"
import "../../qml/widgets/texts.js" as Texts

/// The records of a heat-stress unit: the hour and five temperatures, made into text as they come on screen.
VfTable {
    id: table

    property string unity
    property string indoorRole
    property string outdoorRole
    /// The record's part with the values of the unit shown.
    property var reading: function (record) { return record }

    function head(symbol, below) { return Texts.symbol(symbol, below, unity) }

    cellText: function (row, role) {
        return role === "date" ? Texts.timeText(root.convertDateTimeATToLocalTimeString(row.date))
                               : Texts.numberText(reading(row)[role], root.numberToLocalString)
    }

    VfTableViewColumn { role: "date"; title: qsTr("Hour"); width: 85 }
    VfTableViewColumn { role: "wetTemperature"; title: table.head(qsTr("T"), qsTr("wet")); width: 90 }
    VfTableViewColumn { role: "dryTemperature"; title: table.head(qsTr("T"), qsTr("dry")); width: 85 }
    VfTableViewColumn { role: "globeTemperature"; title: table.head(qsTr("T"), qsTr("globe")); width: 80 }
    VfTableViewColumn { role: table.indoorRole; title: table.head(qsTr("WBGT"), qsTr("i")); width: 80 }
    VfTableViewColumn { role: table.outdoorRole; title: table.head(qsTr("WBGT"), qsTr("o")); width: 80 }
}
