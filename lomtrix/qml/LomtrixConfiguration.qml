// SPDX-License-Identifier: GPL-3.0-or-later
import QtQuick 2.15
import "../../qml/widgets"
import "../../qml/pages"

VfConfigurationWindow {
    property alias sampleTime: sampleTime.text

    function fill(configuration) { sampleTime.text = configuration.sampleTime }

    function collected() {
        warning = sampleTime.fault
        return warning ? null : { sampleTime: sampleTime.text }
    }

    productName: "LOMTRIX"
    title: qsTr("Lomtrix - ") + qsTr("Configuration")

    VfSampleTime { id: sampleTime; label: qsTr("Sample time (mm:ss) *"); width: 280 }
}
