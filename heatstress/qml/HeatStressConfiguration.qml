// SPDX-License-Identifier: GPL-3.0-or-later
import QtQuick 2.15
import "../../qml/widgets"
import "../../qml/pages"

/// What can be set on a heat-stress instrument: the unit and the time between two samples.
VfConfigurationWindow {
    id: window

    property alias unity: unity.value
    property alias sampleTime: sampleTime.text

    function fill(configuration) {
        unity.value = configuration.unity
        sampleTime.show(configuration.sampleTime || "")
    }

    function collected() {
        warning = sampleTime.fault
        if (warning)
            return null
        var configuration = { sampleTime: sampleTime.text }
        if (unity.isChosen)
            configuration.unity = unity.value
        return configuration
    }

    VfFrame {
        width: (parent.width - parent.spacing) / 2
        height: 130
        label: qsTr("Unity") + " *"

        VfRadioGroup { id: unity; name: qsTr("Unity"); choices: ["°C", "°F"] }
    }

    VfSampleTime {
        id: sampleTime

        width: (parent.width - parent.spacing) / 2
        height: 130
        label: qsTr("Sample time") + qsTr(" (mm:ss)*")
    }
}
