// SPDX-License-Identifier: GPL-3.0-or-later
// What reaches an ear below a hearing protector, from the octave bands of a measurement. Levels in dB, A-weighted from
// weighted() on, one for each of the seven octaves.
.pragma library
.import "../../qml/charts/octaves.js" as Octaves
.import "../../qml/charts/timechart.js" as TimeChart

var frequencies = [125, 250, 500, 1000, 2000, 4000, 8000]

// The methods, by the standards that have them. The second counts on what the type of the protector loses in use.
var methods = ["ANSI S12.6 (Method-B);NBR 16076;ISO/TS 4869-5", "ANSI 12.6 (Method-A);ANSI S3.19;ISO 4869-1"]
var types = ["Earmuffs", "Molded", "Pre Molded"]
var factors = [0.75, 0.5, 0.3]

function total(levels) {
    return 10 * Math.log(levels.reduce(function (sum, level) { return sum + Math.pow(10, level / 10) }, 0)) / Math.LN10
}

// A level as it is shown.
function rounded(level) { return Number(level.toFixed(2)) }

// The octaves from 125 to 8000 Hz of some results, as measured; empty when one end is missing. null without an analysis.
function octaves(results) {
    var bands = results.leqList || [], thirds = results.octaveAnalysis === "1/3"
    if (bands.length === 0 || !thirds && results.octaveAnalysis !== "1/1")
        return null
    function has(frequency) { return function (band) { return band.frequency === frequency } }
    var measured = bands.map(function (band) { return TimeChart.number(band.leq) }), found = []
    var end = bands.length - 1 - bands.slice().reverse().findIndex(has(thirds ? "6300.00" : "8000.00"))
    var begin = bands.findIndex(has(thirds ? "100.00" : "125.00"))
    for (var i = begin; begin >= 0 && end < bands.length && i <= end; i += thirds ? 3 : 1)
        found.push(thirds ? total([measured[i], measured[i + 1], measured[i + 2]]) : measured[i])
    return found
}

function weighted(levels) {
    return levels.map(function (level, i) { return level + Octaves.corrections.A[11 + 3 * i] })
}

// Whether there is a level for every octave.
function complete(levels) {
    return levels.length === frequencies.length && levels.every(isFinite)
}

// The levels below a protector that takes away attenuation, less two deviations.
function protectedLevels(levels, attenuation, deviation) {
    return levels.map(function (level, i) { return level - attenuation[i] + 2 * deviation[i] })
}

// The total below a protector. A method that counts on the protector's type has a factor: the part of the protection that
// is left in use.
function protectedTotal(levels, shielded, factor) {
    var below = total(shielded)
    return Math.round((factor === undefined ? below : factor * below + (1 - factor) * total(levels)) * 100) / 100
}
