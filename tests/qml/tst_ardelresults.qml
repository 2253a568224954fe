// SPDX-License-Identifier: GPL-3.0-or-later
import QtQuick 2.15
import "items.js" as Items
import "qrc:/ardel/qml"
import "qrc:/ardel/qml/hearingprotector.js" as Protector

ResultsPageCase {
    id: ardel

    readonly property var octaves: [31.5, 63, 125, 250, 500, 1000, 2000, 4000, 8000]
    readonly property var thirds: [20, 25, 31.5, 40, 50, 63, 80, 100, 125, 160, 200, 250, 315, 400, 500, 630, 800, 1000, 1250, 1600,
                                   2000, 2500, 3150, 4000, 5000, 6300, 8000, 10000]

    function bands(frequencies, levelOf) {
        return frequencies.map(function (frequency, i) {
            return { freqIdx: String(i), frequency: frequency.toFixed(2), leq: String(levelOf(frequency)) }
        })
    }

    /// The results of a dosimeter, by the keys that end in its name.
    function dosimeter(name, criterion, exchangeRate, figures) {
        var found = { ["label" + name]: criterion, [name.replace("D", "d") + "exchangeRate"]: exchangeRate };
        ["dose", "dailyDose", "lavg", "ne", "nen", "twa"].forEach(function (key, i) { found[key + name] = figures[i] })
        return found
    }

    product: "ARDEL 2"
    page: Component { PageArdel2Results {} }
    viewOf: function (page) { return page.viewItem }
    firstTabOf: function (view) { return view.resultPage }
    experiment: function () {
        return {
            date: "21/03/05,14:30:00-12", deviceName: product, eventIndex: 1, expName: "Forge", index: "7", size: "3",
            logList: [{ date: "21/03/05,14:30:00-12", lavgDosimeter1: "80", level: "80.0" },
                      { date: "21/03/05,14:31:00-12", lavgDosimeter1: "---", level: "---" },
                      { date: "21/03/05,14:32:00-12", lavgDosimeter1: "84", level: "90.05" }],
            results: Object.assign({
                label: "", durationStr: "27:46:39", pauseTime: "00:00:10", sampleTime: "60", startTime: "21/03/05,14:30:00-12",
                dosUSERtimeWeighting: "Fast", dosUSERfreqWeighting: "C", octaveAnalysis: "1/1", numFreq: "9", nPk: "3",
                preCal: "94.0", preCalDate: "21/03/05,14:00:00-12", posCal: "---", posCalDate: "", workingHours: "08:00",
                leqList: bands(octaves, function (frequency) {
                    return { 125: 84, 250: 86, 500: 88, 1000: 97, 2000: 99, 4000: 97, 8000: 96 }[frequency] || 70
                })
            }, dosimeter("Dos1", "NHO-01", "3", ["100.5", "201.00", "85", "85.02", "88.03", "80.1"]),
               dosimeter("Dos2", "NR-15", "5.0", ["50", "1100.00", "---", "80.01", "85.01", ""]),
               dosimeter("DosUSER", "USER", "4", ["0.00", "0.00", "60.00", "---", "---", "70.00"]))
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
        return [view.noiseChart.title, view.noiseChart.valueTitle, view.table.getColumn(1).title].concat(view.noiseChart.names)
    }
    infoTexts: ["Event:", "1", "Experiment:", "---", "Date:", "5 Mar 2021", "Exp time:", "27:46:39", "Pause time:", "00:00:10",
                "Sample time [s]:", "60", "Time weighting:", "Fast (F)", "Frequency weighting:", "C", "Octave analysis:", "1/1",
                "Pre check [dB]:", "94.00 (5 Mar 2021)", "Pos check [dB]:", "---"]
    reportWidth: 1000
    reportTexts: ["cmpnyName", "emplName", "siteName", "ownCompany", "collectorName", "repName", "repIdReg"]
    reportRest: ({ audCertified: "" })
    boxes: [{ key: "ckbChartLvl" }, { key: "ckbChartHisto" }, { key: "ckbChartLeq", gone: ["ckbLeqZ", "ckbLeqA", "ckbLeqC"] },
            { key: "ckbLeqZ" }, { key: "ckbLeqA" }, { key: "ckbLeqC" },
            { key: "ckbDos1DosiCfg" }, { key: "ckbDos2DosiCfg" }, { key: "ckbDosUSERDosiCfg" },
            { key: "ckbTable" }, { key: "ckbImpact" }, { key: "ckbHearingProtector", off: true },
            { key: "ckbPreCal" }, { key: "ckbPosCal" }, { key: "ckbCalLab" }, { key: "ckbCalAudLab", gone: ["audCertified"] },
            { key: "logoEnable", gone: ["logoFile"] },
            { key: "cmpnyInfoEnable", gone: ["cmpnyName"] }, { key: "emplInfoEnable", gone: ["emplName"] },
            { key: "siteInfoEnable", gone: ["siteName"] },
            { key: "ownCompanyInfoEnable", gone: ["ownCompany"] }, { key: "collectorInfoEnable", gone: ["collectorName"] },
            { key: "repInfoEnable", gone: ["repName", "repIdInfoEnable", "repIdReg"] }, { key: "repIdInfoEnable" },
            { key: "obsEnable", gone: ["obsText"] }]

    ResultsTestCase {
        name: "dosimeter"
        family: ardel

        function results(change) {
            show(-3, function (experiment) { if (change) change(experiment.results) })
        }

        function look(tab) {
            view().setTab(tab)
            drawn(made)
            function shownItem() {
                return [view().resultPage, view().noiseChart, view().histogram, view().octaveChart, view().protector][tab]
            }
            tryVerify(function () { return shownItem() && Math.abs(shownItem().mapToItem(view().table, 0, 0).x - view().table.width - 16) < 1 })
        }

        /// One measurement after another: tabs, bands and boxes of the report are those of the last.
        function test_octaves() {
            var names = ["Results", "Noise x Time", "Histogram", "L<sub>eq</sub> x Octave", "Hearing Protector"];
            [{ analysis: "1/1", frequencies: ardel.octaves, tabs: 5, a: 70 - 39.4 },
             { analysis: "1/3", frequencies: [], tabs: 3 },
             { analysis: "1/3", frequencies: ardel.thirds.slice(2), tabs: 5, a: 70 - 39.4, dense: true },
             { analysis: "", frequencies: ardel.octaves, tabs: 4, a: 70 - 39.4 },
             { analysis: "Off", frequencies: ardel.thirds.slice(5), tabs: 4, a: 70 - 26.2, dense: true },
             { analysis: "1/3", frequencies: ardel.thirds.slice(4), tabs: 5, a: 70 - 30.2, dense: true },
             { analysis: "1/1", frequencies: ardel.octaves, tabs: 5, a: 70 - 39.4, first: "32.00" }].forEach(function (row) {
                results(function (results) {
                    results.octaveAnalysis = row.analysis
                    results.leqList = bands(row.frequencies, function () { return 70 })
                    if (row.first)
                        results.leqList[0].frequency = row.first
                })
                compare(view().currentTab, 1)
                compare(Items.all(view(), function (item) { return item.choose !== undefined }).map(function (tab) { return tab.text }),
                        names.slice(0, row.tabs))
                if (row.tabs > 3) {
                    look(3)
                    clickOn("text", "A Curve")
                    var chart = view().octaveChart.chart
                    compare([chart.values.length, chart.values[0].toFixed(2), chart.dense],
                            [row.frequencies.length, row.a.toFixed(2), row.dense === true])
                }
                clickOn("buttonLabel", "Generate report")
                var boxes = Items.all(made.reportItem.contentItem, function (item) {
                    return /Octave Analysis|Curve|Hearing/.test(item.text) && item.toggled
                })
                var octaves = row.tabs > 3
                compare(boxes.map(function (box) { return [box.checked, box.enabled] }),
                        [[octaves, octaves], [octaves, octaves], [octaves, octaves], [octaves, octaves], [false, row.tabs > 4]])
                made.reportItem.close()
            })
        }

        function test_dosimeters() {
            function figures(place) { return Items.texts(view().resultPage.items.itemAt(place)) }
            results()
            look(0)
            compare(figures(0), ["NHO-01", "Dose [%]:", "100.50", "Daily dose [%]:", "201.00", "L<sub>eq</sub> [dB]:", "85.00",
                                 "EL [dB]:", "85.02", "NEL [dB]:", "88.03", "TWA [dB]:", "80.10"])
            compare(figures(1), ["NR-15", "Dose [%]:", "50.00", "Daily dose [%]:", "1,100.00", "L<sub>avg</sub> [dB]:", "---",
                                 "EL [dB]:", "80.01", "NEL [dB]:", "85.01", "TWA [dB]:", "---"])
            compare(figures(2), ["USER", "Dose [%]:", "0.00", "Daily dose [%]:", "0.00", "L<sub>eq</sub> [dB]:", "---",
                                 "EL [dB]:", "---", "NEL [dB]:", "---", "TWA [dB]:", "---"])
            verify(Items.texts(view().resultPage).join().indexOf("115 dB peaks occurrence:,3") > 0)
            // A measurement of no time, and figures that are none.
            results(function (results) {
                results.dailyDoseDos1 = "inf"
                results.neDos1 = "-nan"
                results.nenDos1 = null
                results.doseDos2 = null
            })
            look(0)
            compare([figures(0)[4], figures(0)[8], figures(0)[10], figures(1)[2], figures(1)[8]], ["---", "---", "---", "---", "---"])
        }

        function test_noiseChart() {
            results()
            look(1)
            var chart = view().noiseChart, first = new Date("2021-03-05T14:30:00-03:00").getTime()
            compare([chart.title, chart.valueTitle], ["Noise level x Time", "Noise level [dB]"])
            compare([chart.from, chart.to], [first - 60000, first + 180000])
            compare(chart.drawn[0].y, [80, 0, 90.05])
            drawn(chart)
            mouseClick(chart, chart.placeOf(first + 120000), chart.plot.y)
            keyClick(Qt.Key_Left)
            keyClick(Qt.Key_Left)
            compare(told(chart), "Level: 80.00 dB, 14:30:00")
            // A held point stays until the right button lets go of it.
            keyClick(Qt.Key_Space);
            ["Level: 80.00 dB, 14:30:00", "Level: 90.05 dB, 14:32:00"].forEach(function (text) {
                mouseMove(chart, chart.placeOf(first + 120000), 100)
                compare(told(chart), text)
                mouseClick(chart, 100, 100, Qt.RightButton)
            })
        }

        function test_histogram_data() {
            var some = ["80.0", "---", "90.05", "90.99", "149.9", "150", "1e9", "-3", "-0.5", "x"]
            return [{ tag: "of a minute", levels: some, sampleTime: "60", labels: ["1", "81", "91", "150"], values: [3, 1, 2, 1] },
                    { tag: "of two seconds", levels: ["80"], sampleTime: "2", labels: ["81"], values: [0.03] },
                    { tag: "of no time", levels: some, sampleTime: "---", labels: ["1", "81", "91", "150"], values: [0, 0, 0, 0] },
                    { tag: "nothing", levels: [], sampleTime: "1", labels: [], values: [] }]
        }
        function test_histogram(row) {
            show(-3, function (experiment) {
                experiment.results.sampleTime = row.sampleTime
                experiment.logList = row.levels.map(function (level) { return { date: "21/03/05,14:30:00-12", level: level } })
            })
            look(2)
            var chart = view().histogram
            compare([chart.labels, chart.values], [row.labels, row.values])
            chart.forceActiveFocus()
            keyClick(Qt.Key_Right)
            tryVerify(function () {
                return told(chart) === (row.labels.length ? row.labels[0] + " dB, " + row.values[0].toFixed(2) + " min" : "")
            })
        }

        function fields() {
            return Items.all(view().protector, function (item) { return item.showValue !== undefined })
        }

        function typeIn(field, text) {
            mouseClick(field)
            text.split("").forEach(function (letter) { keyClick(letter) })
        }

        function rowTexts(row) { return fields().slice(7 * row, 7 * row + 7).map(function (field) { return field.text }) }

        function sent() { return JSON.parse(core.calls[core.calls.length - 1][1]) }

        function rounded(object) {
            return Object.keys(object).sort().map(function (key) {
                return key + "=" + (typeof object[key] === "number" ? object[key].toFixed(2) : object[key])
            })
        }

        /// With the worked example of an assessment, by both methods.
        function test_protector() {
            results()
            look(4)
            drawn(made)
            var protector = view().protector, total = Items.first(protector, "label", "Total SPLp [dB(A)]:")
            compare(rowTexts(2), ["67.90", "77.40", "84.80", "97.00", "100.20", "98.00", "94.90"])
            compare(Items.texts(total), ["Total SPLp [dB(A)]:", "---"]);
            ["10", "14.4", "19,6", "22.8", "29.6", "38.8", "34.1", "3.6", "3.6", "4.6", "4.0", "6.2", "7.4", "5.2"]
                .forEach(function (text, i) { typeIn(fields()[i], text) })
            clickOn("buttonLabel", "Recalculate")
            compare(rowTexts(0), ["10.00", "14.40", "19.60", "22.80", "29.60", "38.80", "34.10"])
            compare([Items.texts(total)[1], String(total.valueColor)], ["86.48", "#000000"])
            compare([core.calls[0][0], sent().stdNumber, sent().stdApplied, sent().hearingProtectorType, sent().NPSp],
                    ["refreshGeneralData", 1, Protector.methods[0], undefined, 86.48]);
            ["Morvane", "M-1 <b>", "1234"].forEach(function (text, i) {
                Items.all(protector, function (item) { return item.placeholderText && item.selectByMouse })[i].text = text
            })
            clickOn("text", Protector.methods[1]);
            [["Earmuffs", 90.87], ["Molded", 95.25], ["Pre Molded", 98.76]].forEach(function (type) {
                clickOn("text", type[0])
                compare(String(total.valueColor), "#ff5555")
                clickOn("buttonLabel", "Recalculate")
                compare([sent().stdNumber, sent().hearingProtectorType, sent().NPSp], [2, type[0], type[1]])
                if (type[0] === "Molded")
                    compare(rounded(sent()), rounded(JSON.parse(sentTexts["hearingprotector.json"])))
            })
            // New results of the measurement leave it as it is; another measurement leaves what was typed.
            core.resultsUpdated(-3)
            compare([view().currentTab, Items.texts(total)[1], String(total.valueColor)], [4, "98.76", "#000000"])
            results(function (results) { results.leqList[3].leq = "96" })
            look(4)
            compare([rowTexts(0)[0], rowTexts(2)[1], rowTexts(3)[1], Items.texts(total)[1], String(total.valueColor)],
                    ["10.00", "87.40", "---", "---", "#ff5555"])
        }

        function test_protectorField_data() {
            return [{ tag: "left empty", typed: "", text: "1.50" }, { tag: "letters", typed: "abc", text: "1.50" },
                    { tag: "a sign alone", typed: "-", text: "1.50" }, { tag: "negative", typed: "-12.25", text: "-12.25" },
                    { tag: "the most", typed: "1000", text: "1,000.00" }, { tag: "more than the most", typed: "1001", text: "100.00" },
                    { tag: "three decimals", typed: "1.255", text: "1.25" }, { tag: "an exponent", typed: "1e5", text: "15.00" },
                    { tag: "no digit in front", typed: ".5", text: "0.50" }]
        }
        function test_protectorField(row) {
            results()
            look(4)
            drawn(made)
            typeIn(fields()[3], "1.5")
            typeIn(fields()[3 + 7], "0")
            compare(fields()[3].text, "1.50")
            clickOn("buttonLabel", "Recalculate")
            typeIn(fields()[3], row.typed)
            compare(view().protector.outdated, /\d|-/.test(row.typed))
            keyClick(Qt.Key_Tab)
            compare(fields()[3].text, row.text)
        }

        function test_protectorWithoutOctaves_data() {
            return [{ tag: "thirds that end early", analysis: "1/3", frequencies: ardel.thirds.slice(2, 25), total: "-inf" },
                    { tag: "thirds without the last two", analysis: "1/3", frequencies: ardel.thirds.slice(2, 26), total: "---" },
                    { tag: "octaves without the last", analysis: "1/1", frequencies: ardel.octaves.slice(0, 8), total: "-inf" },
                    { tag: "octaves with a gap", analysis: "1/1", frequencies: [63, 125, 500, 1000, 2000, 4000, 8000], total: "96.25" }]
        }
        function test_protectorWithoutOctaves(row) {
            results(function (results) {
                results.octaveAnalysis = row.analysis
                results.leqList = bands(row.frequencies, function () { return 90 })
            })
            look(4)
            compare(Items.texts(Items.first(view().protector, "label", "Total SPL [dB(A)]:"))[1], row.total)
            compare(Items.first(view().protector, "buttonLabel", "Recalculate").enabled, false)
        }

        function test_thirds() {
            function levels(frequency) { return { 100: 80, 125: 83, 160: 77 }[frequency] || 0 }
            var octaves = Protector.octaves({ octaveAnalysis: "1/3", leqList: bands(ardel.thirds.slice(2), levels) })
            compare(octaves.map(function (level) { return level.toFixed(2) }), ["85.44", "4.77", "4.77", "4.77", "4.77", "4.77", "4.77"])
        }

        /// Other working hours change what depends on them; nothing of what is looked at or typed is lost.
        function test_workingHours() {
            results()
            look(0)
            core.meanwhile = function () {
                var experiment = JSON.parse(core.experiment)
                Object.assign(experiment.results, { dailyDoseDos1: "50.25", nenDos1: "82.01", workingHours: "04:00" })
                core.experiment = JSON.stringify(experiment)
                core.meanwhile = null
                core.resultsUpdated(-3)
            }
            clickOn("buttonLabel", "Apply")
            compare(core.calls, [["refreshWorkingHours", "{\"workingHours\":\"08:00\"}"]])
            compare([view().currentTab, view().workingHours.text], [0, "04:00"])
            var texts = Items.texts(view().resultPage.items.itemAt(0))
            compare([texts[4], texts[8], texts[10]], ["50.25", "85.02", "82.01"])
        }
    }
}
