// SPDX-License-Identifier: GPL-3.0-or-later
// The paths that dialogs hand over.
.pragma library

// A dialog's URL as path: the prefix goes (one slash stays where paths begin at the root), "%23" is "#" again.
function path(url, windows) {
    var text = String(url).replace(windows ? /^file:\/\/\// : /^file:\/\//, "")
    try {
        return text === String(url) ? text : decodeURIComponent(text)
    } catch (e) {
        return text
    }
}
