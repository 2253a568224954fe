// SPDX-License-Identifier: GPL-3.0-or-later
import QtQuick 2.15
import "../../heatstress/qml"

HeatStressConfiguration {
    productName: "THALVEX 2"
    title: qsTr("Thalvex 2 - ") + qsTr("Configuration")
}
