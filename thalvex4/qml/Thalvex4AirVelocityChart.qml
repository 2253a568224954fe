// SPDX-License-Identifier: GPL-3.0-or-later
import QtQuick 2.15
import QtCharts 2.3
import "../../qml/charts"
import "../../qml/charts/timechart.js" as TimeChart

/// The air velocity of a unit over time. It stands ready; no tab shows it.
VfTimeChart {
    /// experiment: the parsed one; reading: the unit's part of a record.
    function populateSeries(experiment, reading) {
        var data = read(experiment, ["airVelocity"], reading)
        data.names = [qsTr("Air Velocity")]
        show(Object.assign(data, TimeChart.tenthAround(data.values)), (experiment.results || {}).sampleTime)
    }

    title: qsTr("Air Velocity x Time")
    valueTitle: qsTr("Air Velocity") + " [m/s]"
    valueSuffix: " m/s"
    curve: Component { ScatterSeries { borderColor: "transparent"; markerSize: 6 } }
}
