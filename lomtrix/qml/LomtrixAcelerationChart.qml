// SPDX-License-Identifier: GPL-3.0-or-later
import QtQuick 2.15
import QtCharts 2.3
import "../../qml/charts"
import "../../qml/charts/timechart.js" as TimeChart
import "../../qml/pages/records.js" as Records
import "lomtrix.js" as Lomtrix

/// The accelerations of a measurement over time, resultant and on each axis. Each record has a length of its own.
VfTimeChart {
    function populateSeries(experiment) {
        var records = experiment.logList || []
        var data = read(experiment, ["amr", "awX", "awY", "awZ"], function (record) { return record })
        function interval(place) { return (Records.at(records, place) || {}).interval }
        data.names = ["mr", "wX", "wY", "wZ"].map(function (below) { return Lomtrix.symbol("a", below) })
        show(Object.assign(data, TimeChart.tenthAround(data.values)), interval(0), interval(records.length - 1))
    }

    title: qsTr("Acceleration x Time")
    valueTitle: qsTr("Acceleration") + " [" + Lomtrix.accelerationUnit + "]"
    valueSuffix: " " + Lomtrix.accelerationUnit
    curve: Component { ScatterSeries { borderColor: "transparent" } }
    scattered: true
    looks: [marker("blue"), marker("red"), marker("green"), Object.assign(marker("black"), { color: "gray", opacity: 0.5 })]

    function marker(color) { return { color: color, brushFilename: ":/markers/" + color + "/mrk1.png", markerSize: 10 } }
}
