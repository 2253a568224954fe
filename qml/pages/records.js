// SPDX-License-Identifier: GPL-3.0-or-later
// How the results pages read an experiment of any number of records.
.pragma library

// The object of an experiment's JSON text, null for a text that is none. Its logList are Records where the text allows,
// as all that the controller writes does. The engine does not stand a text of hundreds of thousands of records in one
// piece: what is not to be taken apart has to be short.
function read(text) {
    var list = /[{,]\s*"logList"\s*:\s*\[/.exec(text), begin = list ? list.index + list[0].length : 0
    var records = list ? recordsFrom(text, begin) : null
    var rest = records ? parsed(text.substring(0, begin) + text.substring(records.end)) : null
    if (rest && rest.logList && rest.logList.length === 0) {
        rest.logList = records
        return rest
    }
    return text.length < 3e7 ? parsed(text) : null
}

// The object of a JSON text, null for a text that is none.
function parsed(text) {
    try {
        return JSON.parse(text)
    } catch (e) {
        return null
    }
}

// Records that stay JSON text until they are asked for: like an array with length, forEach and map, and at(place) for an
// element. Parsed they would be millions of small objects and texts, which cost time and memory long after they are gone.
function Records(text, starts, length, end) {
    this.text = text
    this.starts = starts    // where each block begins, and where the last one ends with a comma or the list's bracket
    this.length = length
    this.end = end
    this.shown = []         // the blocks last looked at, {place, records}
}

var blockLength = 128

// The records of a number of blocks. With a cut those that have its form are what it leaves of them.
Records.prototype.blocks = function (place, count, cut) {
    var last = Math.min(place + count, this.starts.length - 1)
    var part = this.text.substring(this.starts[place], this.starts[last])
    if (last < this.starts.length - 1)
        part = part.substring(0, part.lastIndexOf(","))
    return (cut && parsed("[" + part.replace(cut.form, cut.left) + "]")) || parsed("[" + part + "]") || []
}

Records.prototype.at = function (place) {
    var wanted = Math.floor(place / blockLength)
    var block = this.shown.find(function (candidate) { return candidate.place === wanted })
    if (!block && place >= 0 && place < this.length) {
        block = { place: wanted, records: this.blocks(wanted, 1) }
        this.shown = [block].concat(this.shown.slice(0, 3))
    }
    return block ? block.records[place % blockLength] : undefined
}

Records.prototype.forEach = function (visit) {
    for (var place = 0; place < this.starts.length - 1; place += 8)
        this.blocks(place, 8).forEach(visit)
}

// Visits the array that pick(record) gives of each record; texts that are numbers may come as numbers.
Records.prototype.visit = function (pick, visitor) {
    var cut = cutFor(this.at(0), pick)
    for (var place = 0; place < this.starts.length - 1; place += 8)
        this.blocks(place, 8, cut).forEach(function (record) { visitor(Array.isArray(record) ? record : pick(record)) })
}

Records.prototype.map = function (convert) {
    var made = []
    this.forEach(function (record) { made.push(convert(record)) })
    return made
}

// How to cut a record's text down to what pick(record) takes before it is parsed, which is most of the work with a day of
// them: form is an expression for the text of records that have the keys of this one, left stands in its place.
function cutFor(record, pick) {
    var token = /("(?:[^"\\]|\\.)*":)|"(?:[^"\\]|\\.)*"|[^\s",:\[\]{}]+/g, text = JSON.stringify(record), count = 0
    // A record of the same make that has for each value its place among them tells which are picked.
    var picked = pick(JSON.parse(text.replace(token, function (found, key) { return key || count++ })))
    var left = picked.map(function () { return "null" }), groups = 0, form = "", end = 0
    count = 0
    for (var found = token.exec(text); found; found = token.exec(text)) {
        form += text.substring(end, found.index).replace(/[\[\]{}]/g, "\\$&")
        end = token.lastIndex
        if (found[1]) {
            form += found[1].replace(/[.*+?^${}()|[\]\\\/]/g, "\\$&")
        } else if (picked.indexOf(count++) < 0) {
            form += found[0][0] === "\"" ? "\"[^\"\\\\]*\"" : "[^\\s\",:\\[\\]{}]+"
        } else {
            // What is a number needs no quotes; any other text keeps them.
            form += "(?:\"(-?(?:0|[1-9][0-9]*)(?:\\.[0-9]+)?)\"|(\"[^\"\\\\]*\"|[^\\s\",:\\[\\]{}]+))"
            picked.forEach(function (value, place) {
                if (value === count - 1)
                    left[place] = "$" + (groups + 1) + "$" + (groups + 2)
            })
            groups += 2
        }
    }
    form += text.substring(end).replace(/[\[\]{}]/g, "\\$&")
    return groups < 98 ? { form: new RegExp(form, "g"), left: "[" + left.join(",") + "]" } : null
}

// The record at a place of Records or of an array.
function at(list, place) {
    return list.at ? list.at(place) : list[place]
}

// The records of a list that begins in a text; null when they are not alike, so that the text is to be parsed as a whole.
function recordsFrom(text, begin) {
    // Every record begins with the same key, and between quotes the quotes of such a beginning would be escaped.
    var head = /^\s*(\{\s*"(?:[^"\\]|\\.)*"\s*:)/.exec(text.substring(begin, begin + 1000))
    if (!head)
        return null
    var first = begin + head[0].length - head[1].length, starts = [first], length = 1, last = first
    for (var at = text.indexOf(head[1], first + 1); at >= 0 && follows(text, at); at = text.indexOf(head[1], at + 1)) {
        last = at
        if (length++ % blockLength === 0)
            starts.push(at)
    }
    // The list ends behind its last record, but not at the bracket of a list inside that.
    var end = text.indexOf("]", last)
    for (var tries = 0; end >= 0 && tries < 100; ++tries, end = text.indexOf("]", end + 1)) {
        if (!parsed("[" + text.substring(last, end) + "]"))
            continue
        var records = new Records(text, starts.concat(end), length, end), full = starts.length - 1
        var alike = records.blocks(0, 1).length === Math.min(length, blockLength)
            && records.blocks(full, 1).length === length - full * blockLength
        return alike ? records : null
    }
    return null
}

// Whether a record begins at a place behind another one.
function follows(text, at) {
    var comma = beforeBlanks(text, at)
    return text.charCodeAt(comma) === 44 && text.charCodeAt(beforeBlanks(text, comma)) === 125
}

function beforeBlanks(text, at) {
    while (text.charCodeAt(--at) <= 32)
        ;
    return at
}
