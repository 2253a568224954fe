// SPDX-License-Identifier: GPL-3.0-or-later
import QtQuick 2.15
import "../../qml/pages"
import "../../soundlevel/qml"
import "../../soundlevel/qml/soundlevel.js" as SoundLevel

VfResultsPage {
    function fill(parsed) { viewItem.show(parsed) }

    pageTitle: qsTr("Nembra - Results")
    productName: "NEMBRA"
    info: SoundLevelExpInfo {
        weightings: [
            { label: qsTr("Time weighting"), value: timeWeightings[results.timeWeighting] },
            { label: qsTr("Frequency weighting"), value: results.freqWeighting }
        ]
    }
    view: SoundLevelView {
        groupsOf: function (results) {
            var frequency = results.freqWeighting || "", time = SoundLevel.timeLetter(results.timeWeighting)
            function level(below, value) { return SoundLevel.figure(below, value, root.numberToLocalString) }
            return [
                { label: qsTr("Analysis"), columns: 4, figures: [
                    level("eq", results.lEq), level(frequency + "F" + qsTr("Max"), results.lFMax),
                    level(frequency + time + qsTr("Max"), results.lMax), level(frequency + time + qsTr("Min"), results.lMin)
                ] },
                { label: qsTr("Statistics"), columns: 5, figures: SoundLevel.statistics(results, root.numberToLocalString) }
            ]
        }
    }
    reportWindow: NembraPrinterConfiguration {}
}
