// SPDX-License-Identifier: GPL-3.0-or-later
import QtQuick 2.15
import "."

/// An instrument found by the scan.
VfListItem {
    id: item

    property string productName
    property string serialNumber
    property string fwVersion

    description: productName + ", " + qsTr("SN") + ": " + serialNumber + ", " + qsTr("Fw") + ": " + fwVersion

    VfElidedText {
        id: product

        width: 220
        anchors.verticalCenter: parent.verticalCenter
        color: item.textColor
        font { pixelSize: Theme.largeSize - 2; bold: true }
        whole: item.productName
    }
    Column {
        anchors.verticalCenter: parent.verticalCenter
        spacing: 2

        Repeater {
            model: [qsTr("SN") + ": " + item.serialNumber, qsTr("Fw") + ": " + item.fwVersion]
            VfElidedText {
                width: item.room - product.width - Theme.spacing
                color: item.textColor
                whole: modelData
            }
        }
    }
}
