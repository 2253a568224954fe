// SPDX-License-Identifier: GPL-3.0-or-later
import QtQuick 2.15
import "../../qml/pages"

VfSampleTimeConfiguration {
    productName: "LOMTRIX"
    title: qsTr("Lomtrix - ") + qsTr("Configuration")
    caption: qsTr("Sample time (mm:ss) *")
}
