// SPDX-License-Identifier: GPL-3.0-or-later
import QtQuick 2.15
import "../../qml/charts"
import "../../qml/charts/timechart.js" as TimeChart
import "lomtrix.js" as Lomtrix

/// The resultant acceleration in each band.
VfBarChart {
    /// bands: {frequency, amr}, low to high.
    function populate(bands) {
        var values = bands.map(function (band) { return TimeChart.number(band.amr) })
        function text(number, decimals) { return number.toLocaleString(Qt.locale(), "f", decimals) }
        dense = bands.length > 9
        show(bands.map(function (band) { return Lomtrix.bandLabel(band.frequency, text) }), values,
             (TimeChart.extremes([values]).high || 1) * 1.1)
    }

    categorySuffix: " Hz"
    categoryTitle: qsTr("Frequency [Hz]")
    nice: true
    title: qsTr("Amr x Octave")
    valueTitle: qsTr("Amr") + " [" + Lomtrix.accelerationUnit + "]"
    valueSuffix: " " + Lomtrix.accelerationUnit
}
