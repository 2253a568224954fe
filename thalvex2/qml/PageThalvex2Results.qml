// SPDX-License-Identifier: GPL-3.0-or-later
import QtQuick 2.15
import "../../qml/pages"
import "../../heatstress/qml"

VfResultsPage {
    function fill(parsed) {
        viewItem.show(parsed, parsed.results || {}, function (record) { return record })
    }

    pageTitle: qsTr("Thalvex 2 - Results")
    productName: "THALVEX 2"
    info: Thalvex2ExpInfo {}
    view: HeatStressView {
        indoorRole: "IBUTGi"
        outdoorRole: "IBUTGe"
        chart: Thalvex2TemperatureChart {}
        resultItem: Thalvex2ResultItem {}
    }
    reportWindow: Thalvex2PrinterConfiguration {}
}
