// SPDX-License-Identifier: GPL-3.0-or-later
import QtQuick 2.15
import "../../qml/pages"

VfResultsPage {
    function fill(parsed) { viewItem.show(parsed) }
    function refreshed(parsed) { viewItem.refresh(parsed) }

    pageTitle: qsTr("Ardel 2 - Results")
    productName: "ARDEL 2"
    info: Ardel2ExpInfo {}
    view: Ardel2View {}
    reportWindow: Ardel2PrinterConfiguration {
        chartLeqEnabled: viewItem.octavePresent
        hearingProtectedEnabled: viewItem.protectorPresent
    }
}
