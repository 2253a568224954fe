// SPDX-License-Identifier: GPL-3.0-or-later
import QtQuick 2.15
import "../../qml/widgets"
import "../../qml/widgets/texts.js" as Texts

/// The records of a heat-stress unit: five temperatures.
VfRecordsTable {
    property string unity
    property string indoorRole
    property string outdoorRole

    function head(symbol, below) { return Texts.symbol(symbol, below, unity) }

    columns: [
        { role: "wetTemperature", title: head(qsTr("T"), qsTr("wet")), width: 90 },
        { role: "dryTemperature", title: head(qsTr("T"), qsTr("dry")), width: 85 },
        { role: "globeTemperature", title: head(qsTr("T"), qsTr("globe")), width: 80 },
        { role: indoorRole, title: head(qsTr("WBGT"), qsTr("i")), width: 80 },
        { role: outdoorRole, title: head(qsTr("WBGT"), qsTr("o")), width: 80 }
    ]
}
