// SPDX-License-Identifier: GPL-3.0-or-later
import QtQuick 2.15
import "../../qml/pages"

VfInstrumentPage {
    pageTitle: qsTr("Thalvex 4")
    productName: "THALVEX 4"
    fileFilter: "(*.tv4)"
    experimentDelegate: Thalvex4ExperimentItem {}
    configurationWindow: Thalvex4Configuration {}
}
