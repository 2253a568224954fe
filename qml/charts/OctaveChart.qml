// SPDX-License-Identifier: GPL-3.0-or-later
import QtQuick 2.15
import "../widgets"
import "octaves.js" as Octaves

/// The spectrum of a noise measurement, as it was measured or with one of the weightings A and C.
Item {
    id: octaveChart

    /// Bands {frequency, leq}, low to high, and the third octaves from one to the next (octaves.js).
    property var bands: []
    property var step: undefined
    readonly property alias curve: curves.value
    readonly property alias chart: bars

    /// Shows what was measured. What a file tells beyond the third octaves that there are is no spectrum.
    function show(measured, thirds) {
        bands = measured.slice(0, Octaves.corrections.A.length)
        step = thirds
        bars.dense = thirds === 1 || bands.length > 12 // more than octaves are
        curves.value = "Z"
        draw()
    }

    function clear() { show([], undefined) }

    function draw() {
        function text(number, decimals) { return number.toLocaleString(Qt.locale(), "f", decimals) }
        bars.seriesName = curve + qsTr("-Weightning")
        bars.show(bands.map(function (band) { return Octaves.label(band.frequency, text) }),
                  Octaves.levels(bands, step, curve), Octaves.maximum(Octaves.levels(bands, step, "Z"), bars.pointSize))
    }

    onCurveChanged: draw()

    Rectangle { anchors.fill: parent; color: Theme.ground }
    VfRadioGroup {
        id: curves

        anchors { top: parent.top; horizontalCenter: parent.horizontalCenter }
        columns: 3
        name: qsTr("Curve")
        choices: ["Z", "A", "C"]
        texts: [qsTr("Z Curve"), qsTr("A Curve"), qsTr("C Curve")]
        value: "Z"
    }
    VfBarChart {
        id: bars

        anchors { left: parent.left; right: parent.right; top: curves.bottom; bottom: parent.bottom }
        barColor: ({ Z: "#d03030", A: "#1341a6", C: "#2e8b2e" })[octaveChart.curve]
        categoryTitle: qsTr("Frequency [Hz]")
        title: qsTr("L<sub>eq</sub> x Octave")
        valueTitle: qsTr("L<sub>eq</sub> [dB]")
        valueSuffix: " dB"
    }
}
