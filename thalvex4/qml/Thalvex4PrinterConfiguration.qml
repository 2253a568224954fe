// SPDX-License-Identifier: GPL-3.0-or-later
import QtQuick 2.15
import "../../heatstress/qml"

HeatStressPrinterConfiguration {
    width: 1060
    title: qsTr("Thalvex 4 - ") + qsTr("Report configuration")
    itemsTitle: qsTr("Select report items")
    itemGroups: [quantities(qsTr("Table temp"), "Table"), quantities(qsTr("Chart temp"), "Chart"),
                 quantities(qsTr("Results"), "Results")]
    optionGroups: [certificate, csv]
}
