// SPDX-License-Identifier: GPL-3.0-or-later
import QtQuick 2.15
import "../../qml/pages"

VfResultsPage {
    function fill(parsed) { viewItem.show(parsed) }
    function refreshed(parsed) { viewItem.refresh(parsed) }

    pageTitle: qsTr("Lomtrix - Results")
    productName: "LOMTRIX"
    afterAnother: true // the exposure times
    info: LomtrixExpInfo {}
    view: LomtrixView {}
    reportWindow: LomtrixPrinterConfiguration {}
}
