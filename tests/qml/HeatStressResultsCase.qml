// SPDX-License-Identifier: GPL-3.0-or-later
import QtQuick 2.15
import "items.js" as Items

/// What the results pages of the heat-stress meters show.
ResultsPageCase {
    id: heat

    property string indoorRole
    property string outdoorRole
    /// The texts of the result boxes.
    property var resultTexts: []

    /// Three readings: a plain one; texts that are no numbers; one without a date.
    function records() {
        return [
            { date: "21/03/05,14:30:00-12", values: ["24.1", "30.2", "31.0", "25.9", "25.6"] },
            { date: "21/03/05,14:31:00-12", values: ["", "LOW", "32.0", "26.0", "1234.5"] },
            { date: "+00", values: ["20.0", "20.0", "20.0", "20.0", "20.0"] }
        ]
    }

    function quantities(values) {
        var part = { wetTemperature: values[0], dryTemperature: values[1], globeTemperature: values[2] }
        part[indoorRole] = values[3]
        part[outdoorRole] = values[4]
        return part
    }

    readonly property var figures: ({ wetTMax: 24.1, wetTMin: 20, dryTMax: 30.25, dryTMin: 20, globeTMax: 32, globeTMin: 20 })
    readonly property var timing: ({ duration: "00:03:00", pauseTime: "00:00:10", sampleTime: 60, unity: "°C" })

    spoil: function (experiment, text) {
        experiment.expName = experiment.logList[0].date = text
        experiment.results.unity = experiment.results.duration = experiment.results.sampleTime = text
    }
    markupOf: function (view) {
        return [view.temperatureChart.valueTitle, view.temperatureChart.names[0], view.table.getColumn(1).title]
    }

    ResultsTestCase {
        name: "heat stress"
        family: heat

        function test_table() {
            show()
            var table = view().table, heads = []
            for (var i = 0; i < table.columnCount; ++i)
                heads.push(table.getColumn(i).title)
            compare(heads, ["Hour", "T<sub>wet</sub> [°C]", "T<sub>dry</sub> [°C]", "T<sub>globe</sub> [°C]",
                            "WBGT<sub>i</sub> [°C]", "WBGT<sub>o</sub> [°C]"])
            var rows = table.rows.map(function (record) {
                return heads.map(function (head, i) { return table.cellText(record, table.getColumn(i).role) }).join("|")
            })
            compare(rows, ["14:30:00|24.10|30.20|31.00|25.90|25.60", "14:31:00|---|LOW|32.00|26.00|1,234.50",
                           "---|20.00|20.00|20.00|20.00|20.00"])
            compare(table.rowCount, 3)
            tryVerify(function () { return Items.texts(table).indexOf("1,234.50") >= 0 }, 5000, "cells are drawn")
        }

        function test_chartTab() {
            show()
            clickOn("text", "Temperature x Time")
            tryVerify(function () { return view().temperatureChart })
            var chart = view().temperatureChart
            compare(chart.title, "Temperature x Time")
            compare(chart.valueTitle, "Temperature [°C]")
            compare(chart.names[0], "T<sub>wet</sub> [°C]")
            compare(chart.names[4], "WBGT<sub>o</sub> [°C]")
            compare(chart.times.length, 2)          // the third has no place in time
            compare(chart.drawn[0].x.length, 1)
            compare(chart.drawn[2].y[1], 32)
            var first = new Date("2021-03-05T14:30:00-03:00").getTime()
            compare(chart.from, first - 60000)
            compare(chart.to, first + 120000)
            show(-3, function (experiment) { experiment.logList = [] })
            compare(chart.drawn[0].x.length, 0)
        }

        function test_resultsTab() {
            show()
            clickOn("text", "Results")
            tryCompare(view(), "currentTab", 2)
            var boxes = []
            for (var i = 0; i < 5; ++i)
                boxes.push(Items.texts(view().resultItems.itemAt(i)))
            compare(boxes, heat.resultTexts)
        }

        function test_tabsByKeyboard() {
            show()
            Items.first(made, "text", "Temperature x Time").forceActiveFocus(Qt.TabFocusReason)
            keyClick(Qt.Key_Space)
            tryCompare(view(), "currentTab", 1)
            Items.first(made, "text", "Results").forceActiveFocus(Qt.TabFocusReason)
            keyClick(Qt.Key_Return)
            tryCompare(view(), "currentTab", 2)
        }

        /// What the keys reach in chart and table becomes the focus of those who listen.
        function test_told() {
            show()
            view().table.forceActiveFocus()
            tryVerify(function () { return told(view().table).indexOf("Hour 14:30:00, Twet [°C] 24.10, ") === 0 })
            keyClick(Qt.Key_Down)
            verify(told(view().table).indexOf("Hour 14:31:00, Twet [°C] ---, ") === 0)
            view().setTab(1)
            view().temperatureChart.forceActiveFocus()
            keyClick(Qt.Key_Right)
            tryVerify(function () { return told(view().temperatureChart) === "Twet [°C]: 24.10, 14:30:00" })
            keyClick(Qt.Key_Down)
            compare(told(view().temperatureChart), "Tdry [°C]: 30.20, 14:30:00")
        }
    }
}
