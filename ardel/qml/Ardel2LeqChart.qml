// SPDX-License-Identifier: GPL-3.0-or-later
import QtQuick 2.15
import "../../qml/charts"
import "../../qml/charts/octaves.js" as Octaves

/// The spectrum of a measurement. An instrument that does not tell of its analysis tells of it by the number of bands.
OctaveChart {
    /// -1 for a measurement without bands, else 0.
    function populateLeqChart(results) {
        var measured = results.leqList || []
        show(measured, Octaves.step(results.octaveAnalysis, measured.length > 9 ? 1 : 3))
        return measured.length > 0 ? 0 : -1
    }
}
