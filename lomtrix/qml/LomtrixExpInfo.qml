// SPDX-License-Identifier: GPL-3.0-or-later
import QtQuick 2.15
import "../../qml/pages"
import "../../qml/widgets/texts.js" as Texts
import "lomtrix.js" as Lomtrix

/// The data of a vibration measurement, its sensor, and what stands for each of its axes.
VfExpInfo {
    function axes(key, textOf) {
        return ["X", "Y", "Z"].map(function (axis) { return { label: axis, value: textOf(results[key + axis]) } })
    }
    function number(value) { return Texts.numberText(value, root.numberToLocalString) }

    lines: [
        { label: qsTr("Event"), value: experiment.eventIndex },
        { label: qsTr("Experiment"), value: results.label },
        { label: qsTr("Date"), value: dayText(experiment.date) },
        { label: qsTr("Application"), value: Lomtrix.application(results.evaluationType) },
        { label: qsTr("Exp time"), value: results.durationStr },
        { label: qsTr("Pause time"), value: results.pauseTime },
        { label: qsTr("Exposure time"), value: results.exposureTime },
        { label: qsTr("Time weighting"), value: timeWeightings[results.timeWeighting] }
    ]
    beside: [
        { title: qsTr("Sensor"), lines: [{ label: qsTr("Name"), value: results.sensorLabel },
                                         { label: qsTr("SN"), value: results.sensorSN }] },
        { title: qsTr("Sensitivity"), lines: axes("sensitivity", number) },
        { title: qsTr("Factor(k)"), lines: axes("f", number) },
        { title: qsTr("Freq. weighting"), lines: axes("freqWeighting", Texts.text) }
    ]
}
