// SPDX-License-Identifier: GPL-3.0-or-later
import QtQuick 2.15
import "../../qml/pages"

/// The data of a dosimeter's measurement. The weightings are those of the dosimeter that the user sets; the instrument has
/// the same for all three.
VfExpInfo {
    /// Of an instrument that does not tell of its analysis, the number of bands does.
    readonly property string octaveAnalysis: {
        if (["1/1", "1/3"].indexOf(results.octaveAnalysis) >= 0)
            return results.octaveAnalysis
        return { 9: "1/1", 26: "1/3" }[results.numFreq] || ""
    }

    lines: [
        { label: qsTr("Event"), value: experiment.eventIndex },
        { label: qsTr("Experiment"), value: results.label },
        { label: qsTr("Date"), value: dayText(results.startTime) },
        { label: qsTr("Exp time"), value: results.durationStr },
        { label: qsTr("Pause time"), value: results.pauseTime },
        { label: qsTr("Sample time") + " [s]", value: results.sampleTime },
        { label: qsTr("Time weighting"), value: timeWeightings[results.dosUSERtimeWeighting] },
        { label: qsTr("Frequency weighting"), value: results.dosUSERfreqWeighting },
        { label: qsTr("Octave analysis"), value: octaveAnalysis },
        { label: qsTr("Pre check") + " [dB]", value: check(results.preCal, results.preCalDate) },
        { label: qsTr("Pos check") + " [dB]", value: check(results.posCal, results.posCalDate) }
    ]
}
