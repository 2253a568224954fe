// SPDX-License-Identifier: GPL-3.0-or-later
// How the results pages tell whose an experiment is.
.pragma library
.import "records.js" as Records

// The product of the session's instrument while its own page shows the experiment; "" while that is another's.
var taken = ""

// The value of a key of an experiment's JSON text, read from its head: the keys are sorted, and a day of records is a long
// text. Only where the head does not tell (a very long name in front) is the whole text parsed.
function member(text, key) {
    var pattern = /^\s*[{,]\s*"((?:[^"\\]|\\.)*)"\s*:\s*("(?:[^"\\]|\\.)*"|[^\s",{}\[\]]+)\s*(?=[,}])/
    var head = text.substring(0, 300)
    for (var found = pattern.exec(head); found; found = pattern.exec(head)) {
        if (found[1] === key)
            return Records.parsed(found[2])
        head = head.substring(found[0].length)
    }
    var experiment = Records.read(text)
    return experiment ? experiment[key] : undefined
}

// A name, without ending, for the file of the picked entries {index, dateTime} of an instrument's list. The system with the
// narrowest rules for names takes it too.
function proposedName(product, serialNumber, picked) {
    var numbers = picked.map(function (experiment) { return experiment.index }).join("+")
    var date = picked[0].dateTime
    var day = isNaN(date) ? "" : Qt.formatDate(date, "yyyy-MM-dd")
    return [product, serialNumber, numbers, day].filter(Boolean).join(" ")
        .replace(/[\x00-\x1f\\/:*?"<>|]/g, "_").substring(0, 120)
}
