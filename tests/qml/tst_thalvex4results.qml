// SPDX-License-Identifier: GPL-3.0-or-later
import QtQuick 2.15
import QtTest 1.15
import "items.js" as Items
import "qrc:/thalvex4/qml"

HeatStressResultsCase {
    id: results

    readonly property var five: ["ckbDryTemp", "ckbWetTemp", "ckbGlobeTemp", "ckbIBUTGi", "ckbIBUTGe"]
    readonly property Component page4: Component { PageThalvex4Results {} }

    function keys(part) { return five.map(function (key) { return key + part }) }
    function boxesOf(part) {
        return [{ key: "ckb" + part, gone: keys(part) }].concat(keys(part).map(function (key) { return { key: key } }))
    }

    /// The same at count units; unit n reads n degrees more outside.
    function withUnits(count) {
        var whole = experiment()
        whole.logList.forEach(function (record) {
            var main = record.enviromentalFactorsList[0]
            for (var n = 1; n < count; ++n)
                record.enviromentalFactorsList.push(Object.assign({}, main, { WBGTo: String(20 + n) }))
        })
        whole.results.numberOfExpansions = count - 1
        for (var n = 1; n < count; ++n) {
            whole.results.wbgtList.push({ WBGTiMed: 30 + n, WBGToMed: 40 + n })
            whole.results.maxMinTemperatures.push(figures)
        }
        return whole
    }

    product: "THALVEX 4"
    page: page4
    viewOf: function (page) { return page.viewItem.currentView }
    indoorRole: "WBGTi"
    outdoorRole: "WBGTo"
    experiment: function () {
        return {
            date: "21/03/05,14:30:00-12", deviceName: "THALVEX 4", eventIndex: 2, expName: "Forge", index: "7",
            logList: records().map(function (r) {
                return { date: r.date, enviromentalFactorsList: [Object.assign({ airVelocity: "0.5" }, quantities(r.values))] }
            }),
            results: Object.assign({ numberOfExpansions: 0, expansionBoardList: [], maxMinTemperatures: [figures],
                                     wbgtList: [{ WBGTiMed: 25.5, WBGToMed: 26.75 }] }, timing),
            size: "3"
        }
    }
    infoTexts: ["Event:", "2", "Date:", "5 Mar 2021", "Exp time:", "00:03:00", "Pause time:", "00:00:10",
                "Sample time [s]:", "60", "Experiment:", "Forge"]
    resultTexts: [
        ["Wet bulb", "Max [°C]:", "24.10", "Min [°C]:", "20.00"],
        ["Dry bulb", "Max [°C]:", "30.25", "Min [°C]:", "20.00"],
        ["Globe", "Max [°C]:", "32.00", "Min [°C]:", "20.00"],
        ["WBGTi", "Avg [°C]:", "25.50"],
        ["WBGTo", "Avg [°C]:", "26.75"]
    ]
    reportWidth: 1060
    boxes: boxesOf("Table").concat(boxesOf("Chart"), boxesOf("Results"), [
        { key: "ckbCalibration" }, { key: "ckbCsv" },
        { key: "logoEnable", gone: ["logoFile"] },
        { key: "cmpnyInfoEnable", gone: ["cmpnyName"] }, { key: "siteInfoEnable", gone: ["siteName"] },
        { key: "ownCompanyInfoEnable", gone: ["ownCompany"] }, { key: "collectorInfoEnable", gone: ["collectorName"] },
        { key: "repInfoEnable", gone: ["repName", "repIdInfoEnable", "repIdReg"] }, { key: "repIdInfoEnable" },
        { key: "obsEnable", gone: ["obsText"] }
    ])

    ResultsTestCase {
        id: units

        name: "units"
        family: results

        function show(experiment) {
            core.experiment = JSON.stringify(experiment)
            core.experimentUpdated(-3)
            drawn(made)
        }

        function listed() {
            return Items.texts(made.viewItem).filter(function (text) { return /^(Main|Expansion)/.test(text) })
        }

        function outdoors() {
            var table = made.viewItem.currentView.table
            return table.cellText(table.rowAt(0), "WBGTo")
        }

        /// One page shows experiments of 4, 1, 3, 2 and 4 units in turn, and is looked at in each.
        function test_numberOfUnitsChanges() {
            [4, 1, 3, 2, 4].forEach(function (count) {
                show(results.withUnits(count))
                compare(listed(), ["Main", "Expansion 1", "Expansion 2", "Expansion 3"].slice(0, count))
                made.viewItem.currentView.setTab(0)
                compare(outdoors(), "25.60")
                for (var n = 1; n < count; ++n) {
                    mouseClick(Items.first(made.viewItem, "text", "Expansion " + n))
                    compare(made.viewItem.currentUnit, n)
                    made.viewItem.currentView.setTab(0)
                    compare(outdoors(), (20 + n) + ".00")
                    made.viewItem.currentView.setTab(2)
                    compare(Items.texts(made.viewItem.currentView.resultItems.itemAt(4)).pop(), (40 + n) + ".00")
                }
                compare(made.viewItem.currentView.currentTab, count > 1 ? 2 : 0)
                wait(50)
            })
        }

        function test_tabStaysWithAnotherUnit() {
            show(results.withUnits(2))
            made.viewItem.currentView.setTab(2)
            made.viewItem.setUnit(1)
            compare(made.viewItem.currentView.currentTab, 2)
        }

        function test_absurdCount_data() {
            return [{ tag: "huge", count: 2000000000, listed: 4 }, { tag: "negative", count: -7, listed: 1 },
                    { tag: "absent", count: undefined, listed: 1 }]
        }
        function test_absurdCount(row) {
            var whole = results.withUnits(1)
            whole.results.numberOfExpansions = row.count
            show(whole)
            compare(listed().length, row.listed)
            made.viewItem.setUnit(row.listed - 1)
            compare(outdoors(), row.listed > 1 ? "---" : "25.60")
        }

        function test_nextExperimentBeginsWithMain() {
            show(results.withUnits(3))
            made.viewItem.setUnit(2)
            var other = results.withUnits(3)
            other.eventIndex += 1
            other.logList[0].enviromentalFactorsList[0].WBGTo = "33.3"
            core.experiment = JSON.stringify(other)
            core.resultsUpdated(-1)
            compare(made.viewItem.currentUnit, 0)
            compare(outdoors(), "33.30")
            made.viewItem.setUnit(2)
            compare(outdoors(), "22.00")
        }

        function test_listByKeyboard() {
            show(results.withUnits(2))
            Items.all(made.viewItem, function (item) { return item.model === 2 && item.activeFocusOnTab })[0].forceActiveFocus()
            keyClick(Qt.Key_Down)
            compare(made.viewItem.currentUnit, 1)
            compare(outdoors(), "21.00")
        }

        function test_emptyName() {
            var whole = results.withUnits(1)
            whole.expName = ""
            show(whole)
            compare(Items.texts(made.infoItem).pop(), "---")
        }

        Component { id: airVelocity; Thalvex4AirVelocityChart { width: 600; height: 400 } }

        function test_airVelocity() {
            var chart = createTemporaryObject(airVelocity, units)
            var whole = results.withUnits(1)
            whole.logList[1].enviromentalFactorsList[0].airVelocity = "1.0"
            chart.populateSeries(whole, function (record) { return record.enviromentalFactorsList[0] })
            compare(chart.title, "Air Velocity x Time")
            compare(chart.valueTitle, "Air Velocity [m/s]")
            compare(chart.drawn[0].x.length, 2)
            chart.step(1)
            chart.step(1)
            compare(chart.hoverText(), "Air Velocity: 1.00 m/s<br>14:31:00")
        }
    }
}
