// SPDX-License-Identifier: GPL-3.0-or-later
import QtQuick 2.15
import "qrc:/nembra/qml"

SoundLevelResultsCase {
    product: "NEMBRA"
    page: Component { PageNembraResults {} }
    levels: ({ lEq: "83.25", lFMax: "99.9", lMax: "98.1", lMin: "OL" })
    infoTexts: ["Event:", "2", "Experiment:", "---", "Date:", "5 Mar 2021", "Exp time:", "27:46:39", "Pause time:", "00:00:10",
                "Sample time [s]:", "60", "Time weighting:", "Fast (F)", "Frequency weighting:", "C", "Octave analysis:", "1/1",
                "Pre check [dB]:", "94.00 (5 Mar 2021 14:00)", "Pos check [dB]:", "---"]
    groupTexts: [["Analysis", "L<sub>eq</sub> [dB]", "83.25", "L<sub>CFMax</sub> [dB]", "99.90", "L<sub>CFMax</sub> [dB]",
                  "98.10", "L<sub>CFMin</sub> [dB]", "OL"]]
    boxes: [{ key: "ckbTable" }, { key: "ckbChartLvl" }, { key: "ckbChartLeq", gone: ["ckbLeqZ", "ckbLeqC", "ckbLeqA"] },
            { key: "ckbLeqZ" }, { key: "ckbLeqC" }, { key: "ckbLeqA" }].concat(commonBoxes)
}
