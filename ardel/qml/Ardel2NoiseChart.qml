// SPDX-License-Identifier: GPL-3.0-or-later
import QtQuick 2.15
import QtCharts 2.3
import "../../qml/charts"
import "../../qml/charts/timechart.js" as TimeChart

/// The level of the records over time. A record without a level stands at 0.
VfTimeChart {
    function populateSeries(experiment) {
        var data = read(experiment, ["level"], function (record) { return record })
        data.values = data.values.map(function (levels) {
            return levels.map(function (level) { return isNaN(level) ? 0 : level })
        })
        data.names = [qsTr("Level")]
        show(Object.assign(data, TimeChart.tenthAround(data.values)), (experiment.results || {}).sampleTime)
    }

    title: qsTr("Noise level x Time")
    valueTitle: qsTr("Noise level [dB]")
    valueSuffix: " dB"
    scattered: true
    curve: Component {
        ScatterSeries { borderColor: "transparent"; markerShape: ScatterSeries.MarkerShapeRectangle; markerSize: 10 }
    }
}
