// SPDX-License-Identifier: GPL-3.0-or-later
import QtQuick 2.15
import "../../qml/pages"

/// The data of a logger's experiment and of the sensor that it was made with.
VfExpInfo {
    lines: [
        { label: qsTr("Event"), value: experiment.eventIndex },
        { label: qsTr("Experiment"), value: results.label },
        { label: qsTr("Date"), value: dayText(results.startTime) },
        { label: qsTr("Exp time"), value: results.duration },
        { label: qsTr("Pause time"), value: results.pauseTime },
        { label: qsTr("Sample time"), value: results.sampleTime }
    ]
    groups: [{
        title: qsTr("Sensor"),
        lines: [
            { label: qsTr("Type"), value: results.experimentType },
            { label: qsTr("SN"), value: results.sensorSN },
            { label: qsTr("Certificate"), value: results.sensorCertificate }
        ]
    }]
}
