// SPDX-License-Identifier: GPL-3.0-or-later
// The arithmetic of the time charts: moments, the few points that a screen can show, and the way back to every record.
.pragma library

// A reader of the instruments' date texts ("21/03/05,14:30:00-12") that gives moments in ms, NaN for an unreadable text.
// convert reads one text into a Date. The records of a day share its work: only the clock is read for each of them.
function momentReader(convert) {
    var day = "?", zone = "?", midnight = NaN
    return function (text) {
        if (typeof text !== "string" || text.length !== 20)
            return momentOf(convert(text))
        if (!text.startsWith(day) || !text.endsWith(zone)) {
            day = text.substring(0, 9)
            zone = text.substring(17)
            midnight = momentOf(convert(day + "00:00:00" + zone))
        }
        var hour = two(text, 9), minute = two(text, 12), second = two(text, 15)
        var clock = hour < 24 && minute < 60 && second < 60 && text[11] === ":" && text[14] === ":"
        return clock ? midnight + ((hour * 60 + minute) * 60 + second) * 1000 : NaN
    }
}

// NaN for whatever is no date: an empty text converts to an empty text.
function momentOf(date) {
    return date && typeof date.getTime === "function" ? date.getTime() : NaN
}

function two(text, at) {
    var tens = text.charCodeAt(at) - 48, ones = text.charCodeAt(at + 1) - 48
    return tens >= 0 && tens <= 9 && ones >= 0 && ones <= 9 ? tens * 10 + ones : NaN
}

// A text as number; NaN for what is none. An empty or blank text would else read as 0.
function number(text) {
    var value = text === null ? NaN : Number(text)
    return !isFinite(value) || value === 0 && String(text).indexOf("0") < 0 ? NaN : value
}

// Times and values of the records that have a time: {times, sorted, values: one array for each role}. Records that can
// visit() themselves are asked to (see pages/records.js).
// reading(record) is the part of a record with the texts of the roles. A value that is no number is NaN: it is not drawn
// and not pointed at.
function readings(records, moment, roles, reading) {
    // Arrays of plain numbers: the engine's garbage collection does not walk them.
    var times = new Float64Array(records.length), count = 0, sorted = true, last = -Infinity
    var values = roles.map(function () { return new Float64Array(records.length) })
    function pick(record) {
        var part = reading(record)
        return [record.date].concat(roles.map(function (role) { return part[role] }))
    }
    function take(picked) {
        var time = moment(picked[0])
        if (time !== time)
            return
        sorted = sorted && time >= last
        last = times[count] = time
        for (var k = 0; k < roles.length; ++k) {
            var text = picked[k + 1], value = +text
            values[k][count] = value !== 0 && value * 0 === 0 ? value : number(text)
        }
        ++count
    }
    if (records.visit)
        records.visit(pick, take)
    else
        records.forEach(function (record) { take(pick(record)) })
    return { times: times.subarray(0, count), sorted: sorted,
             values: values.map(function (curve) { return curve.subarray(0, count) }) }
}

// What to draw of a curve when the axis from..to has count columns: the lowest and the highest point of each column, in
// their order, so at most two; all points when there are no more than that. Gives {x, y}; a NaN is left out.
// Where the clock was set back (not sorted), a column is an equal part of the records instead.
function columns(xs, ys, count, from, to, sorted) {
    var drawn = { x: [], y: [] }
    function draw(i) { drawn.x.push(xs[i]); drawn.y.push(ys[i]) }

    var valid = 0, i
    for (i = 0; i < xs.length; ++i)
        valid += ys[i] === ys[i] ? 1 : 0
    if (valid <= 2 * count) {
        for (i = 0; i < xs.length; ++i)
            if (ys[i] === ys[i])
                draw(i)
        return drawn
    }

    var low = [], high = [], perColumn = Math.max(to - from, 1) / count
    for (i = 0; i < xs.length; ++i) {
        var y = ys[i]
        if (y !== y)
            continue
        var column = sorted ? Math.max(0, Math.min(count - 1, Math.floor((xs[i] - from) / perColumn)))
                            : Math.floor(i * count / xs.length)
        if (low[column] === undefined) {
            low[column] = high[column] = i
        } else {
            if (y < ys[low[column]]) low[column] = i
            // Of equals the last, so that the two lie apart and the curve fills the column as all its points do.
            if (y >= ys[high[column]]) high[column] = i
        }
    }
    for (column = 0; column < count; ++column) {
        if (low[column] === undefined)
            continue
        draw(Math.min(low[column], high[column]))
        if (low[column] !== high[column])
            draw(Math.max(low[column], high[column]))
    }
    return drawn
}

// What to draw of records that stand for themselves: the first in each cell of a grid of columns and rows over the chart.
// A NaN is left out.
function cells(xs, ys, columns, rows, from, to, low, high) {
    var drawn = { x: [], y: [] }, taken = {}
    for (var i = 0; i < xs.length; ++i) {
        var cell = Math.floor((xs[i] - from) / (to - from) * columns) * rows + Math.floor((ys[i] - low) / (high - low) * rows)
        if (taken[cell] || ys[i] !== ys[i])
            continue
        taken[cell] = true
        drawn.x.push(xs[i])
        drawn.y.push(ys[i])
    }
    return drawn
}

// The parts in which the points of a curve are drawn, as {begin, end}, each beginning with the last point of the one
// before. A series is slow to take its points, with the square of their number: a hundred at a time are quick. A curve
// does not run back in time: where the clock was set back, a part begins of its own.
function pieces(points) {
    var most = 100, found = [], begin = 0
    for (var i = 1; i <= points.x.length; ++i) {
        var back = i < points.x.length && points.x[i] < points.x[i - 1]
        if (!back && i < points.x.length && i - begin < most)
            continue
        found.push({ begin: begin, end: i })
        begin = back ? i : i - 1
    }
    return found
}

// The first and the last moment of some records, {first, last}; both 0 without records.
function reach(times, sorted) {
    if (times.length === 0)
        return { first: 0, last: 0 }
    var ends = sorted ? { low: times[0], high: times[times.length - 1] } : extremes([times])
    return { first: ends.low, last: ends.high }
}

var second = 1000, minute = 60 * second, hour = 60 * minute, day = 24 * hour
var tickSteps = [second, 2 * second, 5 * second, 10 * second, 15 * second, 30 * second,
                 minute, 2 * minute, 5 * minute, 10 * minute, 15 * minute, 30 * minute,
                 hour, 2 * hour, 3 * hour, 6 * hour, 12 * hour, day]

// The round moments of the local clock between two moments, at most so many. A day's first moment is among them.
function timeTicks(from, to, most) {
    var step = day
    while ((to - from) / step > most)
        step *= 2
    step = tickSteps.find(function (candidate) { return (to - from) / candidate <= most }) || step
    var ticks = [], date = new Date(from), days = Math.max(1, step / day), perDay = Math.max(1, day / step)
    for (date.setHours(12, 0, 0, 0); date.getTime() - day / 2 <= to; date.setDate(date.getDate() + days)) {
        // An hour that the clock skips or repeats moves the moments behind it: the clock counts, not the time gone by.
        for (var i = Math.max(0, Math.floor((from - date.getTime() + 10 * hour) / step)); i < perDay; ++i) {
            var tick = new Date(date.getFullYear(), date.getMonth(), date.getDate(), 0, 0, i * step / second)
            if (tick.getTime() > to)
                break
            if (tick.getTime() >= from && tick.getDate() === date.getDate() && !(tick.getTime() <= ticks[ticks.length - 1]))
                ticks.push(tick.getTime())
        }
    }
    return ticks
}

// The place of the record that is nearest in time, -1 when there is none.
function nearest(times, sorted, time) {
    if (!sorted) {
        var best = -1
        for (var i = 0; i < times.length; ++i)
            if (best < 0 || Math.abs(times[i] - time) < Math.abs(times[best] - time))
                best = i
        return best
    }
    var low = 0, high = times.length - 1
    while (low < high) {
        var middle = (low + high) >> 1
        if (times[middle] < time) low = middle + 1
        else high = middle
    }
    return low > 0 && time - times[low - 1] <= times[low] - time ? low - 1 : high
}

// Of several curves the one whose value at a record lies nearest, -1 when none has a number there.
function nearestCurve(values, record, y) {
    return values.reduce(function (best, curve, k) {
        if (isNaN(curve[record]))
            return best
        return best < 0 || Math.abs(curve[record] - y) < Math.abs(values[best][record] - y) ? k : best
    }, -1)
}

// The record by records further on a curve, over those without a number; at the ends the last that has one.
function step(curve, record, by) {
    var direction = by < 0 ? -1 : 1, found = record, left = Math.abs(by)
    for (var i = record + direction; i >= 0 && i < curve.length && left > 0; i += direction) {
        if (isNaN(curve[i]))
            continue
        found = i
        --left
    }
    return found
}

// What a chart leaves free beside its records, in ms, from seconds as an instrument tells them.
function margin(seconds) {
    return Math.max((Number(seconds) || 0) * 1000, 500)
}

// The range of some arrays with a tenth more at its ends, as {low, high}.
function tenthAround(values) {
    var range = extremes(values)
    return { low: Math.min(range.low * 0.9, range.low * 1.1), high: Math.max(range.high * 0.9, range.high * 1.1) || 1 }
}

// Lowest and highest number of some arrays, as {low, high}; both NaN when there is none.
function extremes(values) {
    var low = NaN, high = NaN
    values.forEach(function (curve) {
        for (var i = 0; i < curve.length; ++i) {
            if (curve[i] < low || (isNaN(low) && curve[i] === curve[i])) low = curve[i]
            if (curve[i] > high || (isNaN(high) && curve[i] === curve[i])) high = curve[i]
        }
    })
    return { low: low, high: high }
}
