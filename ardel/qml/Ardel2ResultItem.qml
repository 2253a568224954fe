// SPDX-License-Identifier: GPL-3.0-or-later
import QtQuick 2.15
import "../../qml/widgets"
import "../../qml/widgets/texts.js" as Texts

/// What one of the three dosimeters came to. Without a dose there is no level.
VfFigures {
    property var results: ({})
    /// "Dos1", "Dos2" or "DosUSER", as in the keys of the results.
    property string dosimeter
    readonly property bool exposed: Number(results["dose" + dosimeter]) > 0
    readonly property bool averages: Number(results[dosimeter.replace("D", "d") + "exchangeRate"]) === 5

    /// A measurement of no time has a daily dose that is no number.
    function text(key) {
        var value = results[key + dosimeter]
        return /^[-+]?(inf|nan)/.test(value) ? Texts.absent : Texts.numberText(value, root.numberToLocalString)
    }
    function level(key) { return exposed ? text(key) : Texts.absent }

    label: Texts.escaped(results["label" + dosimeter] || "")
    cellWidth: (width - 2 * padding - Theme.gap) / columns
    columns: 2
    figures: [
        { caption: qsTr("Dose [%]:"), value: text("dose") },
        { caption: qsTr("Daily dose [%]:"), value: text("dailyDose") },
        { symbol: averages ? qsTr("L<sub>avg</sub> [dB]:") : qsTr("L<sub>eq</sub> [dB]:"), value: level("lavg") },
        { symbol: qsTr("EL [dB]:"), value: level("ne") },
        { symbol: qsTr("NEL [dB]:"), value: level("nen") },
        { symbol: qsTr("TWA [dB]:"), value: level("twa") }
    ]
}
