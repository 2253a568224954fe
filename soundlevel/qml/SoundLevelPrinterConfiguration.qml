// SPDX-License-Identifier: GPL-3.0-or-later
import QtQuick 2.15
import "../../qml/pages"

/// What the report windows of the sound level meters share.
VfPrinterConfiguration {
    readonly property var curves: [
        { key: "ckbLeqZ", label: qsTr("Z Curve") }, { key: "ckbLeqC", label: qsTr("C Curve") },
        { key: "ckbLeqA", label: qsTr("A Curve") }
    ]
    readonly property var table: ({ key: "ckbTable", label: qsTr("Table") })
    readonly property var chart: ({ key: "ckbChartLvl", label: qsTr("Chart") })
    /// What only an experiment with bands can have.
    property var ofOctaves: curves.map(function (box) { return box.key })

    width: 1000
    height: 560
    employeeAsked: true
    itemsTitle: qsTr("Select report items")
    optionGroups: [{
        title: qsTr("Calibration"),
        boxes: [
            { key: "ckbPreChk", label: qsTr("Pre check") }, { key: "ckbPosChk", label: qsTr("Pos check") },
            { key: "ckbCalLab", label: qsTr("Sonom. cal. cert.") },
            { key: "ckbCalAudLab", label: qsTr("Aud. cal. cert.: "), text: "audCertified" }
        ]
    }]
    withheld: experiment && experiment.results && (experiment.results.leqList || []).length > 0 ? [] : ofOctaves
}
