// SPDX-License-Identifier: GPL-3.0-or-later
import QtQuick 2.15
import "../../heatstress/qml"

/// Table, chart and results of one unit.
HeatStressView {
    indoorRole: "WBGTi"
    outdoorRole: "WBGTo"
    chart: Thalvex4TemperatureChart {}
    resultItem: Thalvex4ResultItem {}
    // Five of the six columns, without that of WBGTi: the last column is partly cut off, and meant to be.
    tableWidth: 85 + 90 + 85 + 80 + 80
}
