// SPDX-License-Identifier: GPL-3.0-or-later
import QtQuick 2.15
import "../../qml/pages"

/// The data of a heat-stress experiment; a family may put lines of its own behind.
VfExpInfo {
    property var ownLines: []

    lines: [
        { label: qsTr("Event"), value: experiment.eventIndex },
        { label: qsTr("Date"), value: dayText(experiment.date) },
        { label: qsTr("Exp time"), value: results.duration },
        { label: qsTr("Pause time"), value: results.pauseTime },
        { label: qsTr("Sample time") + " [s]", value: results.sampleTime }
    ].concat(ownLines)
}
