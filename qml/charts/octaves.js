// SPDX-License-Identifier: GPL-3.0-or-later
// The arithmetic of the noise instruments' spectra on the pages; reports have the same in C++.
.pragma library

// Corrections in dB of the third octaves from 10 Hz on.
var corrections = {
    A: [-70.4, -63.4, -56.7, -50.5, -44.7, -39.4, -34.6, -30.2, -26.2, -22.5, -19.1, -16.1, -13.4, -10.9, -8.6, -6.6, -4.8,
        -3.2, -1.9, -0.8, 0.0, 0.6, 1.0, 1.2, 1.3, 1.2, 1.0, 0.5, -0.1, -1.1, -2.5, -4.3, -6.6, -9.3, 0.0, 0.0],
    C: [-14.3, -11.2, -8.5, -6.2, -4.4, -3.0, -2.0, -1.3, -0.8, -0.5, -0.3, -0.2, -0.1, 0.0, 0.0, 0.0, 0.0, 0.0, 0.0, 0.0,
        0.0, 0.0, -0.1, -0.2, -0.3, -0.5, -0.8, -1.3, -2.0, -3.0, -4.4, -6.2, -8.5, -11.2, 0.0, 0.0]
}

// The third octave of the first band that instruments begin with, undefined for any other frequency.
function startIndex(frequency) {
    return { 63: 8, 31.5: 5, 32: 5, 50: 7 }[Number(frequency)]
}

// The third octaves from one band to the next; otherwise is what a family takes for an analysis of neither kind, undefined
// where there are then no A and C values.
function step(octaveAnalysis, otherwise) {
    return { "1/1": 3, "1/3": 1 }[octaveAnalysis] || otherwise
}

// The levels of bands {frequency, leq} with weighting "Z", "A" or "C", low to high; NaN for one that was not measured.
// A and C have none without a step or behind a first band that instruments do not begin with.
function levels(bands, step, weighting) {
    var curve = corrections[weighting], start = bands.length > 0 ? startIndex(bands[0].frequency) : undefined
    if (curve && (start === undefined || !step))
        return []
    return bands.map(function (band, i) {
        var level = String(band.leq).trim() === "" ? NaN : Math.round(band.leq * 100) / 100
        return isFinite(level) ? level + (curve ? curve[start + i * step] || 0 : 0) : NaN
    })
}

// "1.25 k", "63 ", "31.5 ": thousands of Hz from 1,000 on, without decimals that are not needed. text(number, decimals)
// writes a number as the reader's country does.
function label(frequency, text) {
    var tenths = Math.round(Number(frequency) * 10) || 0
    if (tenths < 10000)
        return text(tenths / 10, tenths % 10 === 0 ? 0 : 1) + " "
    return text(tenths / 10000, tenths % 10000 === 0 ? 0 : tenths % 1000 === 0 ? 1 : 2) + " k"
}

// The end of the value axis over the Z levels: room above the highest for its label of so many points.
function maximum(levels, pointSize) {
    var highest = levels.reduce(function (most, level) { return level > most ? level : most }, 0)
    return 10 * Math.ceil((highest + pointSize) / 10 + 1)
}
