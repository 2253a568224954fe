// SPDX-License-Identifier: GPL-3.0-or-later
import QtQuick 2.15
import "../../heatstress/qml"

HeatStressPrinterConfiguration {
    title: qsTr("Thalvex 2 - ") + qsTr("Report configuration")
    itemsTitle: qsTr("Select log items")
    itemGroups: [quantities(qsTr("Table temp"), "Table"), quantities(qsTr("Chart temp"), "Chart")]
    optionGroups: [
        {
            title: qsTr("Show results"),
            boxes: [{ key: "ckbMaxMin", label: qsTr("Max/Min") }, { key: "ckbAvg", label: qsTr("Avg") }]
        },
        certificate, csv
    ]
}
