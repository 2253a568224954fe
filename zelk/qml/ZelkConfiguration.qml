// SPDX-License-Identifier: GPL-3.0-or-later
import QtQuick 2.15
import "../../qml/pages"

VfSampleTimeConfiguration {
    height: 280
    productName: "ZELK"
    title: qsTr("Zelk - ") + qsTr("Configuration")
    caption: qsTr("Sample time") + qsTr(" (mm:ss)*")
}
