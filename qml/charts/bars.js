// SPDX-License-Identifier: GPL-3.0-or-later
// The arithmetic of the bar charts.
.pragma library

// The distance of the marks on an axis from 0 to maximum: one, two or five of a power of ten, so that they part the axis in
// no more than most parts.
function step(maximum, most) {
    var power = Math.pow(10, Math.floor(Math.log10(maximum / most)))
    return [1, 2, 5].map(function (part) { return part * power })
        .find(function (part) { return maximum / part <= most }) || 10 * power
}

// The decimals of numbers that are multiples of a step.
function decimals(step) {
    return Math.max(0, -Math.floor(Math.log10(step) + 1e-9))
}
