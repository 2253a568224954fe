// SPDX-License-Identifier: GPL-3.0-or-later
import QtQuick 2.15
import "qrc:/lomtrix/qml"
import "items.js" as Items

ResultsPageCase {
    id: results

    product: "LOMTRIX"
    page: Component { PageLomtrixResults {} }
    // A chain comes first; its results come when the exposure times were given.
    announce: function (position) {
        core.experimentUpdated(position)
        core.resultsUpdated(position)
    }
    viewOf: function (page) { return page.viewItem }
    experiment: function () {
        function record(minute, interval, values) {
            var found = { date: "21/03/05,14:3" + minute + ":00-12", interval: interval };
            ["awX", "awY", "awZ", "vdvX", "vdvY", "vdvZ", "fcX", "fcY", "fcZ", "amr"].forEach(function (key, i) { found[key] = values[i] })
            return found
        }
        return {
            date: "21/03/05,14:30:00-12", deviceName: "LOMTRIX", eventIndex: 2, expName: "Saw", experimentType: "H", index: "7",
            logList: [record(0, "20", ["1", "2", "3", "4", "5", "6", "7", "8", "9", "10.126"]),
                      record(1, "60", ["---", "2", "3", "4", "5", "6", "7", "8", "9", "---"]),
                      record(2, "45", ["1.5", "2", "3", "4", "5", "6", "7", "8", "9", "1010.5"])],
            results: {
                label: "", durationStr: "27:46:39", duration: "99999", pauseTime: "00:00:10", exposureTime: "02:30",
                timeWeighting: "Slow", evaluationType: "1", sensorLabel: "TRI", sensorSN: "S-9",
                sensitivityX: "1", sensitivityY: "2.5", sensitivityZ: "---", fX: "1.4", fY: "1.4", fZ: "1",
                freqWeightingX: "Wd", freqWeightingY: "Wd", freqWeightingZ: "Wk",
                are: 3.126, aren: 0.5, fc: 9, vdvXexp: 1, vdvYexp: 2, vdvZexp: 3, vdvR: 4.5, workingHours: "08:00",
                amrList: [{ freqIdx: "1", frequency: "6.30", amr: "0.25" }, { freqIdx: "2", frequency: "999", amr: "---" },
                          { freqIdx: "3", frequency: "1000.00", amr: "2" }, { freqIdx: "4", frequency: "1250", amr: "1" }]
            },
            size: "3"
        }
    }
    infoTexts: ["Event:", "2", "Experiment:", "---", "Date:", "5 Mar 2021", "Application:", "HAV", "Exp time:", "27:46:39",
                "Pause time:", "00:00:10", "Exposure time:", "02:30", "Time weighting:", "Slow (S)",
                "Sensor", "Name:", "TRI", "SN:", "S-9", "Sensitivity", "X:", "1.00", "Y:", "2.50", "Z:", "---",
                "Factor(k)", "X:", "1.40", "Y:", "1.40", "Z:", "1.00", "Freq. weighting", "X:", "Wd", "Y:", "Wd", "Z:", "Wk"]
    spoil: function (experiment, text) {
        experiment.expName = experiment.experimentType = experiment.logList[0].date = experiment.logList[1].awX = text
        Object.keys(experiment.results).forEach(function (key) {
            if (key !== "amrList")
                experiment.results[key] = text
        })
        experiment.results.amrList.forEach(function (band) { band.frequency = band.amr = text })
    }
    markupOf: function (view) {
        return [view.accelerationChart.title, view.accelerationChart.valueTitle, view.octaveChart.title, view.octaveChart.valueTitle]
            .concat(view.accelerationChart.names, view.octaveChart.labels)
    }
    reportWidth: 850
    reportTexts: ["cmpnyName", "emplName", "siteName", "ownCompany", "collectorName", "repName", "repIdReg"]
    boxes: [
        { key: "ckbTable" }, { key: "ckbChart" }, { key: "ckbCalibration" }, { key: "logoEnable", gone: ["logoFile"] },
        { key: "cmpnyInfoEnable", gone: ["cmpnyName"] }, { key: "emplInfoEnable", gone: ["emplName"] },
        { key: "siteInfoEnable", gone: ["siteName"] },
        { key: "ownCompanyInfoEnable", gone: ["ownCompany"] }, { key: "collectorInfoEnable", gone: ["collectorName"] },
        { key: "repInfoEnable", gone: ["repName", "repIdInfoEnable", "repIdReg"] }, { key: "repIdInfoEnable" },
        { key: "obsEnable", gone: ["obsText"] }
    ]

    ResultsTestCase {
        name: "vibration"
        family: results

        function figures() { return Items.texts(view().evaluation).filter(function (text, i) { return i > 0 && i % 2 === 0 }) }

        function test_showsNothingBeforeExposureTimes() {
            show()
            core.experimentUpdated(-3)
            compare([shown.count, made.experiment], [1, null])
        }

        function test_evaluation() {
            show()
            compare(Items.texts(view().evaluation),
                    ["Evaluation", "are [m/s²]:", "3.13", "aren [m/s²]:", "0.50", "CF:", "9.00",
                     "VDV<sub>expj(X)</sub> [m/s<sup>1.75</sup>]:", "1.00", "VDV<sub>expj(Y)</sub> [m/s<sup>1.75</sup>]:", "2.00",
                     "VDV<sub>expj(Z)</sub> [m/s<sup>1.75</sup>]:", "3.00", "VDV<sub>r</sub> [m/s<sup>1.75</sup>]:", "4.50"])
            // What cannot be told as a number.
            show(-3, function (experiment) { experiment.results.are = null; experiment.results.evaluationType = "3" })
            compare(figures()[0], "---")
            verify(Items.texts(made.infoItem).join().indexOf("Application:,---") > 0)
        }

        /// Another working day is shown at once, and what the user looks at stays.
        function test_workingHours() {
            show()
            view().setTab(1)
            tryVerify(function () { return Math.abs(view().accelerationChart.mapToItem(view(), 0, 0).x) < 1 })
            var chart = view().accelerationChart, records = view().table.rows
            chart.forceActiveFocus()
            keyClick(Qt.Key_Right)
            keyClick(Qt.Key_Space)
            var held = told(chart)
            core.meanwhile = function () {
                var computed = results.experiment()
                computed.results.are = 4.42
                computed.results.workingHours = JSON.parse(core.calls[0][1]).workingHours
                core.experiment = JSON.stringify(computed)
                core.resultsUpdated(-3)
            }
            view().workingHours.children[0].children[0].text = "04:00"
            clickOn("buttonLabel", "Apply")
            compare(core.calls, [["refreshWorkingHours", "{\"workingHours\":\"04:00\"}"]])
            compare([figures()[0], view().workingHours.text, view().workingHours.warning], ["4.42", "04:00", ""])
            compare([view().currentTab, chart.current, view().table.rows === records], [1, 0, true])
            compare(chart.Accessible.description, held)
        }

        function test_table() {
            show()
            var table = view().table, titles = [], cells = []
            for (var i = 1; i < table.columnCount; ++i) {
                titles.push(table.getColumn(i).title)
                cells.push(table.cellText(table.rowAt(0), table.getColumn(i).role))
            }
            var dose = " [m/s<sup>1.75</sup>]"
            compare(titles, ["a<sub>wX</sub> [m/s²]", "a<sub>wY</sub> [m/s²]", "a<sub>wZ</sub> [m/s²]", "a<sub>mr</sub> [m/s²]",
                             "VDV<sub>j(X)</sub>" + dose, "VDV<sub>j(Y)</sub>" + dose, "VDV<sub>j(Z)</sub>" + dose,
                             "CF<sub>X</sub>", "CF<sub>Y</sub>", "CF<sub>Z</sub>"])
            compare(cells, ["1.00", "2.00", "3.00", "10.13", "4.00", "5.00", "6.00", "7.00", "8.00", "9.00"])
            compare(table.cellText(table.rowAt(1), "amr"), "---")
        }

        function test_accelerationChart() {
            show()
            view().setTab(1)
            var chart = view().accelerationChart, first = new Date("2021-03-05T14:30:00-03:00").getTime()
            compare([chart.from, chart.to], [first - 20000, first + 165000])
            compare(chart.drawn[0].y, [10.126, 1010.5])
            compare(chart.drawn[1].y, [1, 1.5])
            compare(chart.looks.map(function (look) { return String(look.color) }), ["blue", "red", "green", "gray"])
            chart.forceActiveFocus()
            keyClick(Qt.Key_Right)
            compare(told(chart), "amr: 10.13 m/s², 14:30:00")
        }

        function test_octaveChart() {
            show()
            view().setTab(2)
            var bars = view().octaveChart
            compare([bars.labels, bars.values[0], bars.dense], [["6.3", "999", "1k", "1.25k"], 0.25, false])
            bars.forceActiveFocus()
            keyClick(Qt.Key_Right)
            keyClick(Qt.Key_Right)
            compare(bars.Accessible.description, "999 Hz, ---");
            // None, and one more than the labels can be large for, after each other.
            [0, 10].forEach(function (count) {
                show(-3, function (experiment) {
                    var band = experiment.results.amrList[0]
                    experiment.results.amrList = Array.from({ length: count }, function () { return band })
                })
                compare([bars.labels.length, bars.dense], [count, count > 9])
            })
        }
    }
}
