// SPDX-License-Identifier: GPL-3.0-or-later
import QtQuick 2.15
import "../../soundlevel/qml"

SoundLevelPrinterConfiguration {
    /// The boxes of the frequency weightings in a part of the report.
    function weightings(title, key) {
        return { title: title, boxes: ["Z", "C", "A"].map(function (letter) { return { key: key + letter, label: letter } }) }
    }

    title: qsTr("Nembra+ - ") + qsTr("Report configuration")
    itemGroups: [
        { title: qsTr("Levels"), boxes: [table, chart, { key: "ckbStatistics", label: qsTr("Statistics") }] },
        weightings(qsTr("Results"), "ckbRes"), weightings(qsTr("Max/Min"), "ckbMaxMin"),
        { title: qsTr("Octave analysis"), boxes: curves }
    ]
}
