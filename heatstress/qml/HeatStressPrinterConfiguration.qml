// SPDX-License-Identifier: GPL-3.0-or-later
import QtQuick 2.15
import "../../qml/pages"

/// What the report windows of the heat-stress families share: the five quantities that each group lets choose.
VfPrinterConfiguration {
    readonly property var certificate: ({
        title: qsTr("Show calibration"), boxes: [{ key: "ckbCalibration", label: qsTr("Cal. cert.") }]
    })
    readonly property var csv: ({ title: "CSV", boxes: [{ key: "ckbCsv", label: qsTr("Generate CSV") }] })

    /// The group of a part of the report ("Table", "Chart", "Results"), whose keys end in its name.
    function quantities(title, part) {
        return {
            title: title,
            key: "ckb" + part,
            boxes: [
                { key: "ckbDryTemp" + part, label: qsTr("Dry bulb") },
                { key: "ckbWetTemp" + part, label: qsTr("Wet bulb") },
                { key: "ckbGlobeTemp" + part, label: qsTr("Globe") },
                { key: "ckbIBUTGi" + part, label: qsTr("WBGTi") },
                { key: "ckbIBUTGe" + part, label: qsTr("WBGTo") }
            ]
        }
    }
}
