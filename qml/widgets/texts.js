// SPDX-License-Identifier: GPL-3.0-or-later
// What texts and numbers of an instrument look like on a page. What comes from an instrument or a file is text and never
// markup, stands in one line, and is laid out only as far as anybody reads it.
.pragma library

var absent = "---"
var longest = 400

// text in one line, cut when it is absurdly long.
function shown(text, most) {
    var limit = most || longest, line = String(text)
    if (line.length > limit)
        line = line.substring(0, limit - 1) + "\u2026"
    return line.replace(/[\x00-\x1f\x7f\u2028\u2029]/g, " ")
}

// text for a place that takes markup: what looks like tags stays to be read. Such places are narrow, and rich text is dear.
function escaped(text) {
    return shown(text, 40).replace(/&/g, "&amp;").replace(/</g, "&lt;").replace(/>/g, "&gt;")
}

// A symbol with its subscript and its unit, as markup.
function symbol(letters, below, unit) {
    return letters + "<sub>" + below + "</sub> [" + escaped(unit) + "]"
}

// What markup says, for those to whom it is read.
function plain(markup) {
    return markup.replace(/<br>/g, ", ").replace(/<[^>]*>/g, "")
        .replace(/&lt;/g, "<").replace(/&gt;/g, ">").replace(/&amp;/g, "&")
}

// Whether there is anything to show.
function isAbsent(value) {
    return value === undefined || value === null || (typeof value === "string" && value.trim() === "")
}

// A text of the instrument, or that it is absent.
function text(value) {
    return isAbsent(value) ? absent : shown(value)
}

// A number through localise (the page's numberToLocalString); a text that reads as no number stays as it stands.
function numberText(value, localise) {
    return isAbsent(value) ? absent : shown(localise(value))
}

// The time of day of a Date as the locale writes it, up to its first blank.
function timeText(date) {
    return date && !isNaN(date) ? date.toLocaleTimeString().split(" ")[0] : absent
}
