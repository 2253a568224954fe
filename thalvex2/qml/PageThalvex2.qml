// SPDX-License-Identifier: GPL-3.0-or-later
import QtQuick 2.15
import "../../qml/pages"

VfInstrumentPage {
    pageTitle: qsTr("Thalvex 2")
    productName: "THALVEX 2"
    fileFilter: "(*.tvx)"
    experimentDelegate: Thalvex2ExperimentItem {}
    configurationWindow: Thalvex2Configuration {}
}
