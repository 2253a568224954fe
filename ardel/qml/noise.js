// SPDX-License-Identifier: GPL-3.0-or-later
// What the pages make of a dosimeter's records.
.pragma library
.import "../../qml/charts/timechart.js" as TimeChart

// The time in minutes, to two decimals, that each class of 1 dB took: [{upTo, minutes}] of those that took any, low to
// high. A record lasts sampleTime seconds; without a level it counts as 0 dB.
function histogram(records, sampleTime) {
    var counts = new Array(150).fill(0)
    records.forEach(function (record) {
        var level = Math.trunc(TimeChart.number(record.level) || 0)
        if (level in counts)
            ++counts[level]
    })
    return counts.map(function (count, level) {
        return { upTo: level + 1, minutes: Number((count * (Number(sampleTime) || 0) / 60).toFixed(2)), count: count }
    }).filter(function (part) { return part.count > 0 })
}
