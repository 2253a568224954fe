// SPDX-License-Identifier: GPL-3.0-or-later
import QtQuick 2.15
import "qrc:/zelk/qml"
import "items.js" as Items

/// A module of three quantities, two of the same name, and others of more and fewer.
ResultsPageCase {
    id: zelk

    readonly property var ownBoxes: choice("ckbTable", "selectedTableColumnsList")
        .concat(choice("ckbChart", "selectedChartsList"))

    /// The head and the three boxes of a list of quantities.
    function choice(key, list) {
        return [{ key: key, changed: { [list]: [] } }].concat([[1, 2], [0, 2], [0, 1]].map(function (left, number) {
            return { key: list + number, unsent: true, changed: { [list]: left } }
        }))
    }

    product: "ZELK"
    page: Component { PageZelkResults {} }
    viewOf: function (page) { return page.viewItem }
    experiment: function () {
        return {
            date: "21/03/05,09:00:00-12", deviceName: product, eventIndex: 2, expName: "Forge", index: "7", size: "3",
            logList: [{ date: "21/03/05,14:30:00-12", physicalQuantitiesList: ["20.5", "30", "-5"] },
                      { date: "21/03/05,14:31:00-12", physicalQuantitiesList: ["21.25", "---", "-5"] },
                      { date: "21/03/05,14:32:00-12", physicalQuantitiesList: ["23", "31"] }],
            results: {
                label: "", duration: "00:03:00", pauseTime: "00:00:10", sampleTime: 60, startTime: "21/03/05,14:30:00-12",
                experimentType: "Ambient", sensorSN: "S/1", sensorCertificate: "", sensorType: "AMB", sensorSubType: "",
                minList: ["20.5", "30", "-5"], averageList: ["21.6", "---", "-5"], maxList: ["23", "31", "-5"],
                quantitiesInfoList: [{ name: "TEMP", nameTr: "Temperature", unity: "°C" },
                                     { name: "TEMP", nameTr: "Temperature", unity: "" },
                                     { name: "EMFX", nameTr: "EMF (x)", unity: "V/m" }]
            }
        }
    }
    infoTexts: ["Event:", "2", "Experiment:", "---", "Date:", "5 Mar 2021", "Exp time:", "00:03:00", "Pause time:", "00:00:10",
                "Sample time:", "60", "Sensor", "", "", "", "", "", "Type:", "Ambient", "SN:", "S/1", "Certificate:", "---"]
    spoil: function (experiment, text) {
        experiment.expName = experiment.logList[0].date = experiment.logList[1].physicalQuantitiesList[0] = text
        Object.keys(experiment.results).forEach(function (key) {
            if (Array.isArray(experiment.results[key]))
                experiment.results[key][0] = key === "quantitiesInfoList" ? { name: text, nameTr: text, unity: text } : text
            else
                experiment.results[key] = text
        })
    }
    markupOf: function (view) {
        var chart = view.charts.currentView.chart
        return [chart.title, chart.valueTitle, chart.names[0], chart.valueSuffix, view.table.getColumn(1).title]
    }
    reportWidth: 900
    boxes: ownBoxes.concat([
        { key: "ckbMaxMin" }, { key: "ckbAvg" }, { key: "ckbCalibration" }, { key: "logoEnable", gone: ["logoFile"] },
        { key: "cmpnyInfoEnable", gone: ["cmpnyName"] }, { key: "siteInfoEnable", gone: ["siteName"] },
        { key: "ownCompanyInfoEnable", gone: ["ownCompany"] }, { key: "collectorInfoEnable", gone: ["collectorName"] },
        { key: "repInfoEnable", gone: ["repName", "repIdInfoEnable", "repIdReg"] }, { key: "repIdInfoEnable" },
        { key: "obsEnable", gone: ["obsText"] }
    ])
    reportRest: ({ selectedTableColumnsList: [0, 1, 2], selectedChartsList: [0, 1, 2] })

    ResultsTestCase {
        name: "zelk"
        family: zelk

        /// Makes the experiment one of count quantities with values that tell where they belong.
        function of(count) {
            return function (experiment) {
                var numbers = new Array(count).fill(0).map(function (zero, i) { return i + 1 })
                experiment.logList.forEach(function (record) { record.physicalQuantitiesList = numbers.map(String) })
                experiment.results.quantitiesInfoList = numbers.map(function (number) {
                    return { name: "Q" + number, nameTr: "Quantity " + number, unity: number % 2 ? "u" : "" }
                })
            }
        }

        function tableTexts() {
            var table = view().table, columns = []
            for (var i = 0; i < table.columnCount; ++i)
                if (table.getColumn(i).visible)
                    columns.push([table.getColumn(i).role, table.getColumn(i).title].concat(table.rows.map(function (record) {
                        return table.cellText(record, table.getColumn(i).role, i)
                    })))
            return columns
        }

        function test_table() {
            show()
            compare(tableTexts(), [["date", "Hour", "14:30:00", "14:31:00", "14:32:00"],
                                   ["TEMP", "Temperature [°C]", "20.50", "21.25", "23.00"],
                                   ["TEMP", "Temperature", "30.00", "---", "31.00"],
                                   ["EMFX", "EMF (x) [V/m]", "-5.00", "-5.00", "---"]])
            var texts = Items.texts(view().table)
            verify(texts.indexOf("20.50") >= 0 && texts.indexOf("30.00") >= 0, "both temperatures are on screen")
        }

        function test_sensorTitle() {
            show()
            drawn(made)
            function line(label) {
                return Items.all(made.infoItem, function (item) { return item.label === label && item.valueColor })[0]
            }
            verify(line("Sensor").y > line("Sample time:").y && line("Type:").y > line("Sensor").y, "in a row of its own")
        }

        function test_growsAndShrinks() {
            [8, 1, 3, 0, 12, 2].forEach(function (count, i) {
                show(0, of(count))
                for (var tab = 0; tab < 3; ++tab) {
                    view().setTab((tab + i) % 3)
                    drawn(made)
                }
                tryVerify(function () { return view().table && view().charts && view().figures })
                compare(tableTexts().length, count + 1)
                verify(view().table.width <= 800)
                compare(view().charts.count, count)
                view().setTab(1)
                compare(view().charts.currentView.visible, count > 0, "no chart of the one before")
                for (var unit = count - 1; unit >= 0; --unit) {
                    view().charts.setUnit(unit)
                    compare(view().charts.currentView.chart.title, "Quantity " + (unit + 1) + " x Time")
                    compare(view().charts.currentView.chart.values[0][2], unit + 1)
                }
                compare(view().figures.items.itemAt(1).figures.length, count)
            })
        }

        function test_chart_data() {
            return [{ tag: "rising", low: "20.5", high: "23", axis: [20, 23], values: ["20.5", "21", "23"] },
                    { tag: "equal", low: "3", high: "3", axis: [0, 3], values: ["3", "3", "3"] },
                    { tag: "equal and below 0", low: "-5", high: "-5", axis: [-5, 0], values: ["-5", "-5", "-5"] },
                    { tag: "zeros", low: "0.0", high: "0", axis: [-1, 1], values: ["0", "0", "0"] },
                    { tag: "one value", low: "7", high: "7", axis: [0, 8], values: ["7"] },
                    { tag: "not told", low: "---", high: "", axis: [0, 4], values: ["4", "---", "4"] },
                    { tag: "no record", low: "---", high: "---", axis: [0, 1], values: [] },
                    { tag: "beyond measure", low: "-1e308", high: "1e308", values: ["-1e308", "0", "1e308"] }]
        }
        function test_chart(row) {
            show(-3, function (experiment) {
                experiment.logList.length = row.values.length
                row.values.forEach(function (value, i) { experiment.logList[i].physicalQuantitiesList = [value] })
                experiment.results.minList = [row.low]
                experiment.results.maxList = [row.high]
            })
            view().setTab(1)
            tryVerify(function () { return view().charts && view().charts.currentView })
            var chart = view().charts.currentView.chart
            if (row.axis)
                compare([chart.low, chart.high], row.axis)
            var first = new Date("2021-03-05T14:30:00-03:00").getTime()
            if (row.values.length > 0)
                compare([chart.from, chart.to], [first - 60000, first + 60000 * row.values.length])
            compare(chart.seriesCount, row.values.length > 0 ? 2 : 0) // a curve and its marks
        }

        function test_pointIsTold() {
            show()
            view().setTab(1)
            tryVerify(function () { return view().charts && view().charts.currentView })
            view().charts.setUnit(2)
            var chart = view().charts.currentView.chart
            chart.forceActiveFocus()
            keyClick(Qt.Key_Right)
            keyClick(Qt.Key_Right)
            tryVerify(function () { return told(chart) === "EMF (x): -5.00 V/m, 14:31:00" })
        }

        function test_figures() {
            show()
            view().setTab(2)
            tryVerify(function () { return view().figures })
            compare([0, 1, 2].map(function (place) { return Items.texts(view().figures.items.itemAt(place)) }),
                    [["Min", "Temperature [°C]", "20.50", "Temperature", "30.00", "EMF (x) [V/m]", "-5.00"],
                     ["Avg", "Temperature [°C]", "21.60", "Temperature", "---", "EMF (x) [V/m]", "-5.00"],
                     ["Max", "Temperature [°C]", "23.00", "Temperature", "31.00", "EMF (x) [V/m]", "-5.00"]])
        }

        /// More charts than a report takes are told of, until some are off.
        function test_tooManyCharts() {
            show(-3, of(9))
            clickOn("buttonLabel", "Generate report")
            var window = made.reportItem.contentItem
            function warned() {
                return Items.all(window, function (item) { return /nine or more/.test(item.text) && item.opacity === 1 }).length
            }
            tryCompare(made.reportItem, "visible", true)
            compare(warned(), 1)
            drawn(window)
            var frames = Items.all(window, function (item) { return item.label === "Show results" && item.demand })
            verify(frames[0].height >= frames[0].implicitHeight, frames.length + " frame of " + frames[0].height + " for " + frames[0].implicitHeight)
            var boxes = Items.all(window, function (item) { return item.Accessible.name === "Charts: Quantity 3" && item.toggled })
            drawn(window)
            mouseClick(boxes[0], 8, 12)
            compare(warned(), 0)
            made.reportItem.close()
        }
    }
}
