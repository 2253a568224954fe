// SPDX-License-Identifier: GPL-3.0-or-later
import QtQuick 2.15
import "../../qml/widgets"
import "../../qml/pages"

/// What can be set on the logger: the time between two samples.
VfConfigurationWindow {
    property alias sampleTime: sampleTime.text

    function fill(configuration) { sampleTime.text = configuration.sampleTime || "" }

    function collected() {
        if (/^([0-5]\d):([0-5]\d)$/.test(sampleTime.text))
            return { sampleTime: sampleTime.text }
        warning = qsTr("The sample time field shall have mm:ss format")
        return null
    }

    height: 280
    productName: "ZELK"
    title: qsTr("Zelk - ") + qsTr("Configuration")

    VfFrame {
        width: parent.width
        height: 100
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
