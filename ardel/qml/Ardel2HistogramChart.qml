// SPDX-License-Identifier: GPL-3.0-or-later
import QtQuick 2.15
import "../../qml/charts"
import "noise.js" as Noise

/// How long each decibel lasted.
VfBarChart {
    function populateSeries(experiment) {
        var found = Noise.histogram(experiment.logList || [], (experiment.results || {}).sampleTime)
        dense = found.length > 30
        show(found.map(function (part) { return String(part.upTo) }), found.map(function (part) { return part.minutes }),
             1.1 * found.reduce(function (most, part) { return Math.max(most, part.minutes) }, 0) || 1)
    }

    title: qsTr("Histogram")
    categoryTitle: qsTr("Noise level [dB]")
    categorySuffix: " dB"
    valueTitle: qsTr("Time [min]")
    valueSuffix: " min"
}
