// SPDX-License-Identifier: GPL-3.0-or-later
// What the instruments' texts are to a reader in a locale and a time zone.
.pragma library

// number padded with "0" on the left.
function leftPad(number, targetLength) {
    var text = String(number)
    while (text.length < targetLength)
        text = "0" + text
    return text
}

// The Date of the instruments' date text "yy/MM/dd,hh:mm:ss" followed by the zone, a sign and two digits of quarter
// hours; "" for an empty text, an invalid Date for one that cannot be read.
function dateTime(text) {
    if (text === "")
        return ""
    var found = /^(\d\d)\/(\d\d)\/(\d\d),(\d\d):(\d\d):(\d\d)([+-])(\d\d)$/.exec(text)
    if (!found)
        return new Date(NaN)
    var quarters = Number(found[8])
    return new Date((2000 + Number(found[1])) + "-" + found[2] + "-" + found[3]
                    + "T" + found[4] + ":" + found[5] + ":" + found[6]
                    + found[7] + leftPad(Math.floor(quarters / 4), 2) + ":" + leftPad(quarters % 4 * 15, 2))
}

// num in the style of the locale, with two decimals; what is no number stays as it stands.
function numberText(num, locale) {
    return isNaN(num) ? num : Number(num).toLocaleString(locale)
}
