// SPDX-License-Identifier: GPL-3.0-or-later
import QtQuick 2.15
import "qrc:/thalvex2/qml"

HeatStressResultsCase {
    readonly property var five: ["ckbDryTemp", "ckbWetTemp", "ckbGlobeTemp", "ckbIBUTGi", "ckbIBUTGe"]

    function keys(part) { return five.map(function (key) { return key + part }) }
    function boxesOf(part) {
        return [{ key: "ckb" + part, gone: keys(part) }].concat(keys(part).map(function (key) { return { key: key } }))
    }

    product: "THALVEX 2"
    page: Component { PageThalvex2Results {} }
    viewOf: function (page) { return page.viewItem }
    indoorRole: "IBUTGi"
    outdoorRole: "IBUTGe"
    experiment: function () {
        return {
            date: "21/03/05,14:30:00-12", deviceName: "THALVEX 2", eventIndex: 1, index: "7",
            logList: records().map(function (r) { return Object.assign({ date: r.date }, quantities(r.values)) }),
            results: Object.assign({ IBUTGiMed: 25.5, IBUTGeMed: 26.75 }, figures, timing), size: "3"
        }
    }
    infoTexts: ["Event:", "1", "Date:", "5 Mar 2021", "Exp time:", "00:03:00", "Pause time:", "00:00:10",
                "Sample time [s]:", "60"]
    resultTexts: [
        ["Wet bulb", "Max [°C]:", "24.10", "Min [°C]:", "20.00"],
        ["Dry bulb", "Max [°C]:", "30.25", "Min [°C]:", "20.00"],
        ["Globe", "Max [°C]:", "32.00", "Min [°C]:", "20.00"],
        ["WBGTi", "Avg [°C]:", "25.50"],
        ["WBGTo", "Avg [°C]:", "26.75"]
    ]
    reportWidth: 850
    boxes: boxesOf("Table").concat(boxesOf("Chart"), [
        { key: "ckbMaxMin" }, { key: "ckbAvg" }, { key: "ckbCalibration" }, { key: "ckbCsv" },
        { key: "logoEnable", gone: ["logoFile"] },
        { key: "cmpnyInfoEnable", gone: ["cmpnyName"] }, { key: "siteInfoEnable", gone: ["siteName"] },
        { key: "ownCompanyInfoEnable", gone: ["ownCompany"] }, { key: "collectorInfoEnable", gone: ["collectorName"] },
        { key: "repInfoEnable", gone: ["repName", "repIdInfoEnable", "repIdReg"] }, { key: "repIdInfoEnable" },
        { key: "obsEnable", gone: ["obsText"] }
    ])
}
