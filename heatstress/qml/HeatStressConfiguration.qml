// SPDX-License-Identifier: GPL-3.0-or-later
import QtQuick 2.15
import "../../qml/widgets"
import "../../qml/pages"

/// What can be set on a heat-stress instrument: the unit and the time between two samples.
VfConfigurationWindow {
    id: window

    readonly property var unities: ["°C", "°F"]
    property string unity
    property alias sampleTime: sampleTime.text

    function fill(configuration) {
        unity = configuration.unity
        sampleTime.text = configuration.sampleTime
    }

    function collected() {
        if (!/^([0-5]\d):([0-5]\d)$/.test(sampleTime.text)) {
            warning = qsTr("The sample time field shall have mm:ss format")
            return null
        }
        var configuration = { sampleTime: sampleTime.text }
        if (unities.indexOf(unity) >= 0)
            configuration.unity = unity
        return configuration
    }

    VfFrame {
        width: (parent.width - parent.spacing) / 2
        height: 130
        label: qsTr("Unity") + " *"

        Column {
            spacing: Theme.gap

            Repeater {
                model: window.unities
                VfRadioButton {
                    group: qsTr("Unity")
                    text: modelData
                    checked: window.unity === modelData
                    onToggled: window.unity = modelData
                }
            }
        }
    }

    VfFrame {
        width: (parent.width - parent.spacing) / 2
        height: 130
        label: qsTr("Sample time") + qsTr(" (mm:ss)*")

        VfInputText {
            id: sampleTime

            fieldWidth: 90
            inputMask: "00:00"
            maximumLength: 5
            description: qsTr("Sample time")
        }
    }
}
