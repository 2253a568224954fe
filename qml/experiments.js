// SPDX-License-Identifier: GPL-3.0-or-later
// How the results pages read an experiment: whose it is, and what its texts look like on a page.
.pragma library

var absent = "---"

// The product of the session's instrument while its own page shows the experiment; "" while that is another's.
var taken = ""

// The product of an experiment's JSON text, read from its head: the keys are sorted, and a day of records is a long text.
// Only where the head does not tell (a very long name in front) is the whole text parsed.
function deviceName(text) {
    var member = /^\s*[{,]\s*"((?:[^"\\]|\\.)*)"\s*:\s*("(?:[^"\\]|\\.)*"|[^\s",{}\[\]]+)\s*(?=[,}])/
    var head = text.substring(0, 300)
    for (var found = member.exec(head); found; found = member.exec(head)) {
        if (found[1] === "deviceName")
            return JSON.parse(found[2])
        head = head.substring(found[0].length)
    }
    var experiment = parsed(text)
    return experiment ? experiment.deviceName : undefined
}

// The object of a JSON text, null for a text that is none.
function parsed(text) {
    try {
        return JSON.parse(text)
    } catch (e) {
        return null
    }
}

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
