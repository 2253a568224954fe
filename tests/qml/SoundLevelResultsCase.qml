// SPDX-License-Identifier: GPL-3.0-or-later
import QtQuick 2.15
import "items.js" as Items

/// What the results pages of the sound level meters show.
ResultsPageCase {
    id: sound

    /// The titles of the groups of figures with what stands in them.
    property var groupTexts: []
    /// The levels of a family's results, and those with a text in place of every level.
    property var levels: ({})
    /// Changes that make the margins of the level chart other ones: {tag, change, before, behind} in seconds.
    property var marginRows: []
    readonly property var statistics: ["Statistics", "L<sub>05</sub> [dB]", "85.10", "L<sub>10</sub> [dB]", "84.00",
                                       "L<sub>50</sub> [dB]", "OL", "L<sub>90</sub> [dB]", "---", "L<sub>95</sub> [dB]", "1,070.50"]

    viewOf: function (page) { return page.viewItem }
    firstTabOf: function (view) { return view.levelChart }
    experiment: function () {
        return {
            date: "21/03/05,14:30:00-12", deviceName: product, eventIndex: 2, expName: "Forge", index: "7", size: "3",
            logList: [{ date: "21/03/05,14:30:00-12", interval: "20", level: "80.0" },
                      { date: "21/03/05,14:31:00-12", interval: "60", level: "---" },
                      { date: "21/03/05,14:32:00-12", interval: "45", level: "90.05" }],
            results: Object.assign({
                label: "", durationStr: "27:46:39", pauseTime: "00:00:10", sampleTime: "60", timeWeighting: "Fast",
                freqWeighting: "C", octaveAnalysis: "1/1", l05: "85.1", l10: "84", l50: "OL", l90: "---", l95: "1070.5",
                preChk: "94.0", preChkDate: "21/03/05,14:00:00-12", posChk: "---", posChkDate: "",
                leqList: [{ freqIdx: "5", frequency: "31.50", leq: "70.126" }, { freqIdx: "8", frequency: "63.00", leq: "80" },
                          { freqIdx: "11", frequency: "125.00", leq: "---" }, { freqIdx: "14", frequency: "250.00", leq: "1e308" }]
            }, levels)
        }
    }
    spoil: function (experiment, text) {
        experiment.expName = experiment.logList[0].date = experiment.logList[1].level = text
        Object.keys(experiment.results).forEach(function (key) {
            if (key !== "leqList")
                experiment.results[key] = text
        })
        experiment.results.leqList.forEach(function (band) { band.frequency = band.leq = text })
    }
    markupOf: function (view) {
        return [view.levelChart.title, view.levelChart.valueTitle, view.levelChart.names[0], view.octaveChart.chart.title,
                view.table.getColumn(1).title].concat(view.octaveChart.chart.labels)
    }
    reportWidth: 1000
    reportTexts: ["cmpnyName", "emplName", "siteName", "ownCompany", "collectorName", "repName", "repIdReg"]
    reportRest: ({ audCertified: "" })

    readonly property var commonBoxes: [
        { key: "ckbPreChk" }, { key: "ckbPosChk" }, { key: "ckbCalLab" }, { key: "ckbCalAudLab", gone: ["audCertified"] },
        { key: "logoEnable", gone: ["logoFile"] },
        { key: "cmpnyInfoEnable", gone: ["cmpnyName"] }, { key: "emplInfoEnable", gone: ["emplName"] },
        { key: "siteInfoEnable", gone: ["siteName"] },
        { key: "ownCompanyInfoEnable", gone: ["ownCompany"] }, { key: "collectorInfoEnable", gone: ["collectorName"] },
        { key: "repInfoEnable", gone: ["repName", "repIdInfoEnable", "repIdReg"] }, { key: "repIdInfoEnable" },
        { key: "obsEnable", gone: ["obsText"] }
    ]

    ResultsTestCase {
        name: "sound level"
        family: sound

        function test_levelChart_data() {
            return [{ tag: "of a sample time", change: null, before: 60, behind: 60 }].concat(sound.marginRows)
        }
        function test_levelChart(row) {
            show(-3, row.change)
            var chart = view().levelChart, first = new Date("2021-03-05T14:30:00-03:00").getTime()
            compare([chart.title, chart.valueSuffix], ["L<sub>Ceq</sub> x Time", " dB"])
            compare([chart.from, chart.to], [first - 1000 * row.before, first + 1000 * (120 + row.behind)])
            compare(chart.drawn[0].y, [80, 90.05])
        }

        function test_octaveChart() {
            show()
            view().setTab(1)
            tryVerify(function () { return view().levelChart.mapToItem(view(), view().levelChart.width, 0).x < 1 })
            var bars = view().octaveChart.chart
            compare([bars.labels, bars.values[0], bars.values[1]], [["31.5 ", "63 ", "125 ", "250 "], 70.13, 80])
            clickOn("text", "A Curve")
            compare(bars.values.slice(0, 2).map(function (level) { return level.toFixed(2) }), ["30.73", "53.80"])
            bars.forceActiveFocus()
            keyClick(Qt.Key_Right)
            tryVerify(function () { return told(bars) === "31.5 Hz, 30.73 dB" })
            keyClick(Qt.Key_Right)
            keyClick(Qt.Key_Right)
            keyClick(Qt.Key_Right)
            compare(told(bars), "250 Hz, ---")
            keyClick(Qt.Key_Delete)
            compare(bars.current, -1);
            // Others one after another begin with what was measured; those of no known kind have that alone.
            [["1/3", 2], ["1/1", 0], ["Off", 3], ["1/3", 1]].forEach(function (other) {
                show(-3, function (experiment) {
                    experiment.results.octaveAnalysis = other[0]
                    experiment.results.leqList.length = other[1]
                })
                compare([view().octaveChart.curve, bars.labels.length, bars.dense], ["Z", other[1], other[0] === "1/3"])
                clickOn("text", "C Curve")
                compare(bars.values.length, other[0] === "Off" ? 0 : other[1])
            })
        }

        function test_results() {
            show()
            view().setTab(2)
            tryVerify(function () { return view().groups })
            var texts = []
            for (var i = 0; i < view().groups.count; ++i)
                texts.push(Items.texts(view().groups.itemAt(i)))
            compare(texts, sound.groupTexts.concat([sound.statistics]))
            var table = view().table
            compare(table.getColumn(1).title, "L<sub>Ceq</sub> [dB]")
            compare(table.rows.map(function (record) { return table.cellText(record, "date") + "|" + table.cellText(record, "level") }),
                    ["14:30:00|80.00", "14:31:00|---", "14:32:00|90.05"])
        }

        /// Without bands nothing of octaves can be asked for, and with the next experiment it can again.
        function test_reportWithoutOctaves() {
            [0, 3].forEach(function (count) {
                show(-3, function (experiment) { experiment.results.leqList.length = count })
                clickOn("buttonLabel", "Generate report")
                var curves = Items.all(made.reportItem.contentItem, function (item) { return / Curve$/.test(item.text) && item.toggled })
                compare(curves.map(function (box) { return [box.checked, box.enabled] }),
                        [[count > 0, count > 0], [count > 0, count > 0], [count > 0, count > 0]])
                made.reportItem.close()
            })
        }
    }
}
