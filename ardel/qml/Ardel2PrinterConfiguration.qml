// SPDX-License-Identifier: GPL-3.0-or-later
import QtQuick 2.15
import "../../qml/pages"

/// What the report of a dosimeter's measurement can hold.
VfPrinterConfiguration {
    property bool chartLeqEnabled: false
    property bool hearingProtectedEnabled: false

    readonly property var octaves: ({
        title: qsTr("Octave Analysis"), key: "ckbChartLeq", boxes: [
            { key: "ckbLeqZ", label: qsTr("Z Curve") }, { key: "ckbLeqA", label: qsTr("A Curve") },
            { key: "ckbLeqC", label: qsTr("C Curve") }
        ]
    })
    readonly property string protectorKey: "ckbHearingProtector"

    title: qsTr("Ardel 2 - ") + qsTr("Report configuration")
    width: 1000
    height: 560
    employeeAsked: true
    notesTitle: qsTr("Comments")
    notesLabel: qsTr("Show comments")
    itemsTitle: qsTr("Charts")
    itemGroups: [
        { title: "", boxes: [
            { key: "ckbChartLvl", label: qsTr("Level") }, { key: "ckbChartHisto", label: qsTr("Histogram") }
        ] },
        octaves
    ]
    optionGroups: [
        { title: qsTr("Configuration"), boxes: [
            { key: "ckbDos1DosiCfg", label: qsTr("Dos1") }, { key: "ckbDos2DosiCfg", label: qsTr("Dos2") },
            { key: "ckbDosUSERDosiCfg", label: qsTr("User") }
        ] },
        { title: qsTr("Items"), boxes: [
            { key: "ckbTable", label: qsTr("Table") }, { key: "ckbImpact", label: qsTr("N peaks") },
            { key: protectorKey, label: qsTr("Hearing Protector") }
        ] },
        { title: qsTr("Calibration"), boxes: [
            { key: "ckbPreCal", label: qsTr("Pre chk.") }, { key: "ckbPosCal", label: qsTr("Pos chk.") },
            { key: "ckbCalLab", label: qsTr("Dosim. cal. cert.") },
            { key: "ckbCalAudLab", label: qsTr("Aud. cal. cert.: "), text: "audCertified" }
        ] }
    ]
    offAtFirst: [protectorKey]
    withheld: (chartLeqEnabled ? [] : [octaves.key].concat(octaves.boxes.map(function (box) { return box.key })))
        .concat(hearingProtectedEnabled ? [] : protectorKey)
}
