// SPDX-License-Identifier: GPL-3.0-or-later
// Ways to find what a user sees.
.pragma library

// The visible items at or below item that pass the test, in the order of the tree.
function all(item, test) {
    if (!item || !item.visible)
        return []
    var found = test(item) ? [item] : []
    for (var i = 0; i < item.children.length; ++i)
        found = found.concat(all(item.children[i], test))
    return found
}

function first(item, property, value) {
    return all(item, function (candidate) { return candidate[property] === value })[0] || null
}

// The texts that stand at or below an item.
function texts(item) {
    return all(item, function (candidate) { return typeof candidate.text === "string" && candidate.textFormat !== undefined })
        .map(function (candidate) { return candidate.text })
}
