// SPDX-License-Identifier: GPL-3.0-or-later
import QtQuick 2.15
import "../../qml/pages"

VfResultsPage {
    pageTitle: qsTr("Thalvex 4 - Results")
    productName: "THALVEX 4"
    info: Thalvex4ExpInfo {}
    view: Thalvex4Units {}
    reportWindow: Thalvex4PrinterConfiguration {}

    function fill(parsed) { viewItem.show(parsed) }
}
