// SPDX-License-Identifier: GPL-3.0-or-later
import QtQuick 2.15
import "../../soundlevel/qml"

SoundLevelPage {
    pageTitle: qsTr("Nembra+")
    productName: "NEMBRA+"
    fileFilter: "(*.nbp)"
    configurationWindow: NembraPlusConfiguration {}
}
