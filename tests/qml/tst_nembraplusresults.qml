// SPDX-License-Identifier: GPL-3.0-or-later
import QtQuick 2.15
import "qrc:/nembraplus/qml"

SoundLevelResultsCase {
    readonly property var weightings: ["Z", "C", "A"]
    readonly property var times: ["IMin", "IMax", "FMin", "FMax", "SMin", "SMax"]

    /// A level of its own for each key, and how it is shown.
    function groupOf(title, endings, tens) {
        return [title].concat.apply([title], weightings.map(function (weighting, row) {
            return [].concat.apply([], endings.map(function (ending, i) {
                return ["L<sub>" + weighting + ending + "</sub> [dB]", (tens + 10 * row + i) + ".00"]
            }))
        }))
    }
    function levelsOf(endings, tens) {
        var found = {}
        weightings.forEach(function (weighting, row) {
            endings.forEach(function (ending, i) { found["L" + weighting + ending] = String(tens + 10 * row + i) })
        })
        return found
    }

    product: "NEMBRA+"
    page: Component { PageNembraPlusResults {} }
    levels: Object.assign({ mode: "AUTO", lEq: "" }, levelsOf(["Eq", "E", "peak"], 40), levelsOf(times, 80))
    infoTexts: ["Event:", "2", "Experiment:", "---", "Date:", "5 Mar 2021", "Exp time:", "27:46:39", "Pause time:", "00:00:10",
                "Sample time [s]:", "60", "Octave analysis:", "1/1",
                "Pre check [dB]:", "94.00 (5 Mar 2021 14:00)", "Pos check [dB]:", "---"]
    groupTexts: [groupOf("Analysis", ["eq", "E", "peak"], 40), groupOf("Max/Min", times, 80)]
    marginRows: [{ tag: "by hand", before: 20, behind: 45, change: function (experiment) {
        experiment.results.mode = "MANUAL"
        experiment.results.sampleTime = "---"
    } }]
    boxes: [{ key: "ckbTable" }, { key: "ckbChartLvl" }, { key: "ckbStatistics" },
            { key: "ckbResZ" }, { key: "ckbResC" }, { key: "ckbResA" },
            { key: "ckbMaxMinZ" }, { key: "ckbMaxMinC" }, { key: "ckbMaxMinA" },
            { key: "ckbLeqZ" }, { key: "ckbLeqC" }, { key: "ckbLeqA" }].concat(commonBoxes)
}
