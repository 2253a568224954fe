// SPDX-License-Identifier: GPL-3.0-or-later
import QtQuick 2.15
import "../../soundlevel/qml"

SoundLevelPrinterConfiguration {
    readonly property var octaves: ({ title: qsTr("Octave analysis"), key: "ckbChartLeq", boxes: curves })

    title: qsTr("Nembra - ") + qsTr("Report configuration")
    itemGroups: [{ title: qsTr("Levels"), boxes: [table, chart] }, octaves]
    ofOctaves: [octaves.key].concat(curves.map(function (box) { return box.key }))
}
