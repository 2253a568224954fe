// SPDX-License-Identifier: GPL-3.0-or-later
import QtQuick 2.15
import "../../qml/pages"

VfInstrumentPage {
    pageTitle: qsTr("ZELK")
    productName: "ZELK"
    fileFilter: "(*.zlk)"
    severalAtOnce: true
    oneType: true
    tellsFailedSaving: true
    experimentDelegate: ZelkExperimentItem {}
    configurationWindow: ZelkConfiguration {}
}
