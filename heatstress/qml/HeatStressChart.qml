// SPDX-License-Identifier: GPL-3.0-or-later
import QtQuick 2.15
import "../../qml/charts"
import "../../qml/widgets/texts.js" as Texts

/// The temperatures of a heat-stress unit over time.
VfTimeChart {
    /// experiment: the parsed one; figures: what its instrument computed for the unit; reading: the unit's part of a record.
    function populateSeries(experiment, figures, reading, indoorRole, outdoorRole) {
        var roles = ["wetTemperature", "dryTemperature", "globeTemperature", indoorRole, outdoorRole]
        var data = read(experiment, roles, reading)
        function named(symbol, below) { return Texts.symbol(symbol, below, figures.unity) }
        data.names = [named(qsTr("T"), qsTr("wet")), named(qsTr("T"), qsTr("dry")), named(qsTr("T"), qsTr("globe")),
                      named(qsTr("WBGT"), qsTr("i")), named(qsTr("WBGT"), qsTr("o"))]
        // The WBGT curves take no part in the range.
        data.low = Math.min(figures.wetTMin, figures.dryTMin, figures.globeTMin) - 1
        data.high = Math.max(figures.wetTMax, figures.dryTMax, figures.globeTMax) + 1
        valueTitle = qsTr("Temperature") + " [" + Texts.escaped(figures.unity) + "]"
        show(data, figures.sampleTime)
    }

    title: qsTr("Temperature x Time")
}
