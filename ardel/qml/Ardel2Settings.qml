// SPDX-License-Identifier: GPL-3.0-or-later
import QtQuick 2.15
import QtQuick.Window 2.15
import "../../qml/widgets"
import "../../qml/pages"

/// What can be set on the dosimeter: what its three dosimeters share, and the levels of the USER dosimeter.
VfConfigurationBody {
    id: body

    readonly property var levels: [
        { key: "actionLevel", label: qsTr("Action level [dB]"), least: 0, most: 90, start: 80 },
        { key: "criterionLevel", label: qsTr("Criterion level [dB]"), least: 80, most: 90, start: 80 },
        { key: "exchangeRate", label: qsTr("Exchange rate (q) [dB]"), least: 3, most: 6, start: 3 }
    ]
    property alias experimentDuration: duration.text
    property alias scheduleStatus: scheduleStatus.checked

    function fill(configuration) {
        scheduleStatus.checked = configuration.scheduleStatus === true
        if (Window.window.visible && !enabled)
            return // the schedules could not be written: what is typed here meanwhile stays
        noise.fill(configuration)
        duration.text = configuration.experimentDuration || ""
        levels.forEach(function (level, i) { boxes.itemAt(i).box.show(configuration[level.key]) })
    }

    /// What the instrument told and nobody changed goes back as it came; levels go as texts.
    function collected() {
        warning = durationFault()
        if (warning)
            return null
        var configuration = { experimentDuration: duration.text, scheduleStatus: scheduleStatus.checked }
        for (var key in noise.groups)
            configuration[key] = noise.groups[key].value
        levels.forEach(function (level, i) { configuration[level.key] = boxes.itemAt(i).box.value.toString() })
        return configuration
    }

    function durationFault() {
        var parts = duration.text.split(":")
        return duration.fault || (Number(parts[0]) * 60 + Number(parts[1]) <= 540 ? ""
            : qsTr("The experiment duration shall not be higher than 9 hours"))
    }

    productName: "ARDEL 2"
    note: qsTr("Configuration fields with * are shared by all dosimetries.")

    Column {
        width: parent.width
        spacing: Theme.spacing

        Row {
            width: parent.width
            height: noise.height
            spacing: parent.spacing

            VfNoiseSettings { id: noise; mark: " *"; width: parent.width - length.width - parent.spacing }
            VfFrame {
                id: length

                width: 230
                height: parent.height
                label: qsTr("Experiment duration (hh:mm) *")

                VfClockField {
                    id: duration

                    description: qsTr("Experiment duration (hh:mm) *")
                    refusal: qsTr("The experiment duration field shall have hh:mm format")
                }
            }
        }

        VfFrame {
            width: parent.width
            label: qsTr("Custom dosimeter")

            Row {
                spacing: 2 * Theme.spacing

                Repeater {
                    id: boxes

                    model: body.levels
                    Column {
                        readonly property alias box: box

                        spacing: Theme.gap

                        VfText { color: Theme.quietText; text: modelData.label }
                        VfSpinBox {
                            id: box

                            name: modelData.label
                            least: modelData.least
                            most: modelData.most
                            value: modelData.start
                        }
                    }
                }
            }
        }

        VfCheckBox { id: scheduleStatus; text: qsTr("Enable schedule *") }
    }
}
