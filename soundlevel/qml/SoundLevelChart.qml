// SPDX-License-Identifier: GPL-3.0-or-later
import QtQuick 2.15
import "../../qml/charts"
import "../../qml/charts/timechart.js" as TimeChart
import "../../qml/pages/records.js" as Records
import "soundlevel.js" as SoundLevel

/// The level over time. Measured by hand, each record has a length of its own.
VfTimeChart {
    function populateSeries(experiment) {
        var results = experiment.results || {}, records = experiment.logList || []
        var symbol = SoundLevel.symbol((results.freqWeighting || "") + "eq")
        var data = read(experiment, ["level"], function (record) { return record })
        data.names = [symbol]
        title = symbol + " x " + qsTr("Time")
        valueTitle = symbol + " [dB]"
        function interval(place) { return (Records.at(records, place) || {}).interval }
        var manual = results.mode === "MANUAL"
        show(Object.assign(data, TimeChart.tenthAround(data.values)), manual ? interval(0) : results.sampleTime,
             manual ? interval(records.length - 1) : results.sampleTime)
    }

    valueSuffix: " dB"
}
