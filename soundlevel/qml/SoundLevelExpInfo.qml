// SPDX-License-Identifier: GPL-3.0-or-later
import QtQuick 2.15
import "../../qml/pages"

/// The data of an experiment of a sound level meter; a family may put its weightings between.
VfExpInfo {
    property var weightings: []

    lines: [
        { label: qsTr("Event"), value: experiment.eventIndex },
        { label: qsTr("Experiment"), value: results.label },
        { label: qsTr("Date"), value: dayText(experiment.date) },
        { label: qsTr("Exp time"), value: results.durationStr },
        { label: qsTr("Pause time"), value: results.pauseTime },
        { label: qsTr("Sample time") + " [s]", value: results.sampleTime }
    ].concat(weightings, [
        { label: qsTr("Octave analysis"), value: results.octaveAnalysis },
        { label: qsTr("Pre check") + " [dB]", value: check(results.preChk, results.preChkDate, true) },
        { label: qsTr("Pos check") + " [dB]", value: check(results.posChk, results.posChkDate, true) }
    ])
}
