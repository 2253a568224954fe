// SPDX-License-Identifier: GPL-3.0-or-later
// What the pages of the vibration meter call its quantities. The names are markup.
.pragma library
.import "../../qml/widgets/texts.js" as Texts

var accelerationUnit = "m/s²"

function doseUnit(localise) { return "m/s<sup>" + localise(1.75) + "</sup>" }

// The symbol of a quantity: "a", "VDV" or "CF", with what stands below it.
function symbol(letters, below) { return letters + "<sub>" + below + "</sub>" }

// The rows of a table for the three axes: roles and symbols end in their letters.
function axes(role, symbolOf, more) {
    return ["X", "Y", "Z"].map(function (axis) {
        return Object.assign({ role: role + axis, title: symbolOf(axis) }, more)
    })
}

// What a measurement is evaluated for: whole-body or hand-arm vibration.
function application(evaluationType) { return { "0": "WBV", "1": "HAV" }[evaluationType] }

// The name of a band on the axis of a spectrum: thousands in short, and a text that is no number as it stands. text(number,
// decimals) writes in the style of the locale.
function bandLabel(frequency, text) {
    function whole(number) { return text(number, (String(number).split(".")[1] || "").length) }
    var number = Number(frequency)
    return isNaN(number) ? Texts.escaped(frequency) : number >= 1000 ? whole(number / 1000) + "k" : whole(number)
}
