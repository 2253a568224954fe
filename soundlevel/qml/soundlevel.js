// SPDX-License-Identifier: GPL-3.0-or-later
// What the pages of the sound level meters make of an experiment's results.
.pragma library
.import "../../qml/widgets/texts.js" as Texts

// The symbol of a level, as markup.
function symbol(below) {
    return "L<sub>" + Texts.escaped(below) + "</sub>"
}

// A figure of VfFigures: a level in dB, or the text that stands in its place.
function figure(below, value, localise) {
    return { symbol: symbol(below) + " [dB]", value: Texts.numberText(value, localise) }
}

// The letter of a time weighting, "" for an unknown one.
function timeLetter(weighting) {
    return { Slow: "S", Fast: "F", Impulse: "I" }[weighting] || ""
}

// The statistics: levels exceeded for a part of the time.
function statistics(results, localise) {
    return ["05", "10", "50", "90", "95"].map(function (part) { return figure(part, results["l" + part], localise) })
}
