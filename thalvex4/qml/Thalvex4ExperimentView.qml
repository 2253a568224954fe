// SPDX-License-Identifier: GPL-3.0-or-later
import QtQuick 2.15
import "../../heatstress/qml"

/// Table, chart and results of one unit.
HeatStressView {
    indoorRole: "WBGTi"
    outdoorRole: "WBGTo"
    chart: Thalvex4TemperatureChart {}
    resultItem: Thalvex4ResultItem {}
}
