// SPDX-License-Identifier: GPL-3.0-or-later
// What texts and numbers of an instrument look like on a page.
.pragma library

var absent = "---"

// Whether there is anything to show.
function isAbsent(value) {
    return value === undefined || value === null || (typeof value === "string" && value.trim() === "")
}

// A text of the instrument, or that it is absent.
function text(value) {
    return isAbsent(value) ? absent : String(value)
}

// A number through localise (the page's numberToLocalString); a text that reads as no number stays as it stands.
function numberText(value, localise) {
    return isAbsent(value) ? absent : localise(value)
}

// The time of day of a Date as the locale writes it, up to its first blank.
function timeText(date) {
    return date && !isNaN(date) ? date.toLocaleTimeString().split(" ")[0] : absent
}
