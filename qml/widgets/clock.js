// SPDX-License-Identifier: GPL-3.0-or-later
// Times of two numbers as they are typed.
.pragma library

var patterns = { "hh:mm": /^([01]\d|2[0-3]):[0-5]\d$/, "mm:ss": /^[0-5]\d:[0-5]\d$/ }

// Whether text is a time of the form "hh:mm", within a day, or "mm:ss", within an hour.
function isTime(text, form) { return patterns[form].test(text) }
