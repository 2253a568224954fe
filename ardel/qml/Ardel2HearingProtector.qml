// SPDX-License-Identifier: GPL-3.0-or-later
import QtQuick 2.15
import "../../qml/widgets"
import "../../qml/widgets/texts.js" as Texts
import "hearingprotector.js" as Protector

/// What reaches the ear below a hearing protector: computed when the user asks for it, and then told to the report.
Item {
    id: protector

    /// The measured levels, A-weighted, and those below the protector, as they are shown; with their totals.
    property var levels: []
    property real levelsTotal: NaN
    property var shielded: []
    property real shieldedTotal: NaN
    /// Whether the protected levels are not those of what is typed.
    property bool outdated: true
    readonly property bool complete: Protector.complete(levels)
    /// Whether the method counts on the type of the protector.
    readonly property bool typed: methods.value === Protector.methods[1]
    readonly property var bands: [qsTr("125 Hz"), qsTr("250 Hz"), qsTr("500 Hz"), qsTr("1 kHz"), qsTr("2 kHz"), qsTr("4 kHz"),
                                  qsTr("8 kHz")]

    /// Takes over a measurement; what was typed stays. -1 for one without the octaves, else 0.
    function populateHearingProtect(results) {
        var octaves = Protector.octaves(results), weighted = Protector.weighted(octaves || [])
        levels = weighted.map(Protector.rounded)
        levelsTotal = Protector.total(weighted)
        shielded = []
        shieldedTotal = NaN
        outdated = true
        return octaves ? 0 : -1
    }

    function updateNewNpspValue() {
        if (!complete)
            return
        var attenuation = attenuations.numbers(), deviation = deviations.numbers(), cfg = { datatype: "hearingprotect" }
        var below = Protector.protectedLevels(levels, attenuation, deviation), type = Protector.types.indexOf(types.value)
        shielded = below.map(Protector.rounded)
        shieldedTotal = Protector.protectedTotal(levels, shielded, typed ? Protector.factors[type] : undefined)
        Protector.frequencies.forEach(function (frequency, i) {
            cfg["att" + frequency] = attenuation[i]
            cfg["desv" + frequency] = deviation[i]
            cfg["nps" + frequency] = levels[i]
            cfg["npsp" + frequency] = below[i]
        })
        cfg.stdApplied = methods.value
        cfg.stdNumber = typed ? 2 : 1
        if (typed)
            cfg.hearingProtectorType = types.texts[type]
        cfg.NPSp = shieldedTotal
        cfg.hearProtectMfc = manufacturer.text
        cfg.hearProtectModel = model.text
        cfg.hearProtectCANumber = approval.text
        cfg.NPS = Protector.rounded(levelsTotal)
        outdated = false
        core.refreshGeneralData(JSON.stringify(cfg))
    }

    function text(level) { return isNaN(level) ? Texts.absent : root.numberToLocalString(level) }

    Column {
        anchors { left: parent.left; right: parent.right; margins: Theme.gap }
        spacing: 12

        Row {
            spacing: Theme.spacing

            VfInputText {
                id: manufacturer

                label: qsTr("Manufacturer:")
                placeholderText: qsTr("Manufacturer")
                onTextChanged: protector.outdated = true
            }
            VfInputText {
                id: model

                label: qsTr("Model:")
                placeholderText: qsTr("Model")
                onTextChanged: protector.outdated = true
            }
            VfInputText {
                id: approval

                label: qsTr("C.A.:")
                placeholderText: qsTr("C.A. number")
                onTextChanged: protector.outdated = true
            }
        }

        Row {
            spacing: 2 * Theme.margin

            VfRadioGroup {
                id: methods

                name: qsTr("Std. applied")
                choices: Protector.methods
                value: Protector.methods[0]
                onValueChanged: protector.outdated = true
            }
            Column {
                enabled: protector.typed
                opacity: enabled ? 1 : 0.5
                spacing: Theme.gap

                VfText { text: qsTr("Type:") }
                VfRadioGroup {
                    id: types

                    columns: 3
                    name: qsTr("Type:")
                    choices: Protector.types
                    texts: [qsTr("Earmuffs"), qsTr("Molded"), qsTr("Pre Molded")]
                    value: Protector.types[0]
                    onValueChanged: protector.outdated = true
                }
            }
        }

        Column {
            spacing: 4

            Row {
                leftPadding: 130 + spacing
                spacing: Theme.gap
                Repeater {
                    model: protector.bands
                    VfText { width: 90; color: Theme.quietText; horizontalAlignment: Text.AlignRight; text: modelData }
                }
            }
            Ardel2ProtectorRow {
                id: attenuations

                label: qsTr("Attenuation [dB]:")
                names: protector.bands
                onEdited: protector.outdated = true
            }
            Ardel2ProtectorRow {
                id: deviations

                label: qsTr("Desviation [dB]:")
                names: protector.bands
                onEdited: protector.outdated = true
            }
            Ardel2ProtectorRow { label: qsTr("SPL [dB(A)]:"); names: protector.bands; levels: protector.levels }
            Ardel2ProtectorRow { label: qsTr("SPLp [dB(A)]:"); names: protector.bands; levels: protector.shielded }
        }

        Row {
            spacing: Theme.margin

            VfInfoElement {
                anchors.verticalCenter: parent.verticalCenter
                label: qsTr("Total SPL [dB(A)]:")
                value: protector.text(protector.levelsTotal)
            }
            VfInfoElement {
                anchors.verticalCenter: parent.verticalCenter
                label: qsTr("Total SPLp [dB(A)]:")
                value: protector.text(protector.shieldedTotal)
                valueColor: protector.outdated ? "#FF5555" : "#000000"
            }
            MyButton {
                buttonLabel: qsTr("Recalculate")
                enabled: protector.complete
                onMyButtonclicked: protector.updateNewNpspValue()
            }
            VfText {
                anchors.verticalCenter: parent.verticalCenter
                color: Theme.warning
                text: qsTr("An octave from 125 Hz to 8 kHz was not measured")
                visible: !protector.complete
                Accessible.role: Accessible.AlertMessage
                Accessible.name: text
            }
        }
    }
}
