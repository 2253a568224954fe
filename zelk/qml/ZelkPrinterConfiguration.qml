// SPDX-License-Identifier: GPL-3.0-or-later
import QtQuick 2.15
import "../../qml/pages"
import "zelk.js" as Zelk

VfPrinterConfiguration {
    readonly property var quantities: Zelk.quantities(experiment && experiment.results || {})

    /// A part of the report with the quantities to choose for it; their numbers go into a list.
    function choice(title, key, list) {
        return { title: title, key: key, list: list, boxes: Zelk.names(quantities).map(function (name, idx) {
            return { key: list + " " + idx, number: idx, label: name }
        }) }
    }

    title: qsTr("Zelk - ") + qsTr("Report configuration")
    width: 900
    height: 660
    itemsTitle: qsTr("Select log items")
    itemGroups: [
        choice(qsTr("Table"), "ckbTable", "selectedTableColumnsList"),
        Object.assign(choice(qsTr("Charts"), "ckbChart", "selectedChartsList"), {
            most: 8, tooMany: qsTr("With nine or more charts selected the report has none.")
        })
    ]
    optionGroups: [
        {
            title: qsTr("Show results"),
            boxes: [{ key: "ckbMaxMin", label: qsTr("Max/Min") }, { key: "ckbAvg", label: qsTr("Avg") }]
        },
        { title: qsTr("Show calibration"), boxes: [{ key: "ckbCalibration", label: qsTr("Cal. cert.") }] }
    ]
}
