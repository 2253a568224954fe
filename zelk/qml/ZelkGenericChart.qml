// SPDX-License-Identifier: GPL-3.0-or-later
import QtQuick 2.15
import QtCharts 2.3
import "../../qml/charts"
import "../../qml/widgets/texts.js" as Texts
import "zelk.js" as Zelk

/// One quantity over time.
Item {
    readonly property alias chart: timeChart

    /// quantity stands at place among those of the experiment.
    function show(experiment, quantity, place) {
        var results = experiment.results || {}, name = Texts.escaped(quantity.nameTr || "")
        var data = timeChart.read(experiment, [place], function (record) { return record.physicalQuantitiesList || [] })
        data.names = [name]
        timeChart.title = name + " x " + qsTr("Time")
        timeChart.valueTitle = Zelk.title(quantity)
        timeChart.valueSuffix = quantity.unity ? " " + Texts.escaped(quantity.unity) : ""
        var range = Zelk.toldRange((results.minList || [])[place], (results.maxList || [])[place], data.values[0])
        timeChart.show(Object.assign(data, range), results.sampleTime)
    }

    function forget() { timeChart.clear() }

    VfTimeChart {
        id: timeChart

        anchors.fill: parent
        marks: Component { ScatterSeries { borderColor: "transparent"; markerSize: 7 } }
    }
}
