// SPDX-License-Identifier: GPL-3.0-or-later
import QtQuick 2.15
import "../../qml/pages"

VfPrinterConfiguration {
    title: qsTr("Lomtrix - ") + qsTr("Report configuration")
    employeeAsked: true
    itemsTitle: qsTr("Select report items")
    itemGroups: [{
        title: qsTr("Acceleration"),
        boxes: [{ key: "ckbTable", label: qsTr("Table") }, { key: "ckbChart", label: qsTr("Chart") }]
    }]
    optionGroups: [{ title: qsTr("Show calibration"), boxes: [{ key: "ckbCalibration", label: qsTr("Cal. cert.") }] }]
}
