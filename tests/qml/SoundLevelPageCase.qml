// SPDX-License-Identifier: GPL-3.0-or-later
import QtQuick 2.15

/// The pages of the sound level meters set weightings and octaves, and download several experiments at once.
InstrumentPageCase {
    readonly property date moment: new Date(2021, 2, 5, 14, 30)

    several: true
    configuration: ({ timeWeighting: "Slow", frequencyWeighting: "A", octaveAnalysis: "1/1" })
    fillRows: [{ tag: "others", configuration: { timeWeighting: "Impulse", frequencyWeighting: "Z", octaveAnalysis: "1/3" },
                 ticked: "Impulse,Z,1/3" },
               { tag: "no octaves", configuration: { timeWeighting: "Fast", frequencyWeighting: "C", octaveAnalysis: "Off" },
                 ticked: "Fast,C", disabled: "1/3" },
               { tag: "another product", configuration: { productName: "NEMBRA 2", timeWeighting: "Fast" },
                 ticked: "Slow,A,1/1" }]
    applyRows: [{ tag: "as read", sent: configuration },
                { tag: "picked", pick: "Impulse", sent: Object.assign({}, configuration, { timeWeighting: "Impulse" }) },
                { tag: "nothing known", configuration: { timeWeighting: "slow", octaveAnalysis: "Off" }, sent: {} }]
    experiments: [{ index: 1, dateTime: moment, size: 1, exp_Name: "Forge" },
                  { index: 2, dateTime: moment, size: 86400, exp_Name: "Caldeira à lenha <b>" },
                  { index: 3, dateTime: new Date(NaN), size: 5, exp_Name: "" }]
    secondTexts: ["", "2:", "Caldeira à lenha <b>", "Date: " + moment.toLocaleString(Qt.locale(), Locale.LongFormat),
                  "Size: 86400"]
}
