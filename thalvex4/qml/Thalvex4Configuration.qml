// SPDX-License-Identifier: GPL-3.0-or-later
import QtQuick 2.15
import "../../heatstress/qml"

HeatStressConfiguration {
    height: 320
    productName: "THALVEX 4"
    title: qsTr("Thalvex 4 - ") + qsTr("Configuration")
}
