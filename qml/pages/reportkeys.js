// SPDX-License-Identifier: GPL-3.0-or-later
// The keys of a report, named once by its window: the boxes, what they start with and the JSON for the printer follow.
// A row is {key, kind, when}: a "switch" or a "text", sent always or only while the switch named by when is on; or a "list"
// of the numbers of those of its members that are on, which is empty while the switch named by when is off.
.pragma library

function on(key, when) { return { key: key, kind: "switch", when: when } }
function text(key, when) { return { key: key, kind: "text", when: when } }

// The keys of a text field {on, text, under}: the switch beside it, and its text while that is on. A field under another
// switch hangs on that one altogether: its text is sent even while its own switch is off.
function ofField(field) {
    return [on(field.on, field.under), text(field.text, field.under || field.on)]
}

// The keys of a group of boxes {title, key, boxes: [{key, label, text}]}: its head, and the boxes that hang on it. A text
// beside a box is sent while that is on. A group without a head key has boxes that are always sent. A group {list} with
// the key of a list has boxes {key, label, number}.
function ofGroup(group) {
    var head = group.key ? [on(group.key)] : []
    if (group.list) {
        var members = group.boxes.map(function (box) { return { key: box.key, kind: "member", number: box.number } })
        return head.concat(members, { key: group.list, kind: "list", when: group.key, members: members })
    }
    return head.concat(joined(group.boxes, function (box) {
        return [on(box.key, group.key)].concat(box.text ? text(box.text, box.key) : [])
    }))
}

function joined(parts, rowsOf) {
    return parts.reduce(function (rows, part) { return rows.concat(rowsOf(part)) }, [])
}

// values with every switch on but those that are off; the texts stay.
function allOn(rows, values, off) {
    var next = {}
    rows.forEach(function (row) {
        next[row.key] = row.kind === "text" ? values[row.key] || "" : off.indexOf(row.key) < 0
    })
    return next
}

// A copy of values with one changed.
function changed(values, key, value) {
    var next = {}
    for (var old in values)
        next[old] = values[old]
    next[key] = value
    return next
}

// The object for the printer.
function parameters(rows, values) {
    var cfg = {}
    rows.forEach(function (row) {
        if (row.kind === "list")
            cfg[row.key] = row.members.filter(function (member) { return values[row.when] && values[member.key] })
                .map(function (member) { return member.number }).sort(function (a, b) { return a - b })
        else if (row.kind !== "member" && (!row.when || values[row.when]))
            cfg[row.key] = row.kind === "switch" ? values[row.key] === true : values[row.key] || ""
    })
    return cfg
}
