// SPDX-License-Identifier: GPL-3.0-or-later
import QtQuick 2.15
import QtTest 1.15
import "../../qml/charts"
import "qrc:/qml/widgets"
import "qrc:/qml/charts"
import "qrc:/qml/pages"
import "qrc:/qml/shell"
import "qrc:/qml/charts/timechart.js" as TimeChart

TestCase {
    id: test

    name: "timechart"
    when: windowShown
    visible: true
    width: 900
    height: 500

    Component { id: made; VfTimeChart { anchors.fill: parent } }

    function points(count, valueOf) {
        var xs = [], ys = []
        for (var i = 0; i < count; ++i) {
            xs.push(1000 * i)
            ys.push(valueOf(i))
        }
        return { x: xs, y: ys }
    }

    function noise(i) { return (i * 7919) % 1009 }

    function test_cells() {
        var all = points(5000, function (i) { return i % 100 ? noise(i) : NaN })
        var drawn = TimeChart.cells(all.x, all.y, 20, 10, 0, 5e6, 0, 1009)
        compare([drawn.x.length, drawn.x[0], drawn.y[0]], [200, 1000, noise(1)])
    }

    function test_columns_data() {
        return [
            { tag: "fewer than columns", count: 5, columns: 10, valueOf: noise, exact: true },
            { tag: "as many as fit", count: 20, columns: 10, valueOf: noise, exact: true },
            { tag: "one more", count: 21, columns: 10, valueOf: noise },
            { tag: "one column", count: 100, columns: 1, valueOf: noise },
            { tag: "a day", count: 86400, columns: 600, valueOf: noise },
            { tag: "one peak", count: 86400, columns: 600, valueOf: function (i) { return i === 54321 ? 99 : 1 } },
            { tag: "some no numbers", count: 5000, columns: 100, valueOf: function (i) { return i % 3 ? noise(i) : NaN } },
            { tag: "few numbers", count: 5000, columns: 100, valueOf: function (i) { return i % 100 ? NaN : i }, exact: true },
            { tag: "no numbers", count: 500, columns: 10, valueOf: function (i) { return NaN }, exact: true },
            { tag: "nothing", count: 0, columns: 10, valueOf: noise, exact: true }
        ]
    }
    function test_columns(row) {
        var all = points(row.count, row.valueOf), to = 1000 * Math.max(1, row.count - 1)
        var drawn = TimeChart.columns(all.x, all.y, row.columns, 0, to, true)
        var there = all.x.filter(function (x, i) { return !isNaN(all.y[i]) })
        if (row.exact)
            return compare(drawn.x, there)
        function columnOf(x) { return Math.min(row.columns - 1, Math.floor(x / (to / row.columns))) }
        var low = [], high = [], count = [], lowDrawn = [], highDrawn = []
        function note(lows, highs, x, y) {
            var c = columnOf(x)
            lows[c] = Math.min(y, lows[c] === undefined ? Infinity : lows[c])
            highs[c] = Math.max(y, highs[c] === undefined ? -Infinity : highs[c])
        }
        for (var i = 0; i < all.x.length; ++i)
            if (!isNaN(all.y[i]))
                note(low, high, all.x[i], all.y[i])
        for (i = 0; i < drawn.x.length; ++i) {
            note(lowDrawn, highDrawn, drawn.x[i], drawn.y[i])
            count[columnOf(drawn.x[i])] = (count[columnOf(drawn.x[i])] || 0) + 1
            verify(i === 0 || drawn.x[i] > drawn.x[i - 1], "in order of time")
            compare(drawn.y[i], row.valueOf(drawn.x[i] / 1000))
        }
        compare(lowDrawn, low)
        compare(highDrawn, high)
        verify(count.every(function (n) { return n <= 2 }), "at most two points for a column")
    }

    function test_moments_data() {
        return [
            { tag: "plain", text: "21/03/05,14:30:00-12", iso: "2021-03-05T14:30:00-03:00" },
            { tag: "east, by half an hour", text: "21/03/05,14:30:59+22", iso: "2021-03-05T14:30:59+05:30" },
            { tag: "last second", text: "20/02/29,23:59:59+00", iso: "2020-02-29T23:59:59Z" },
            { tag: "clock set on in that night", text: "18/11/04,00:30:00-12", iso: "2018-11-04T00:30:00-03:00" },
            { tag: "empty", text: "" }, { tag: "invalid", text: "+00" }, { tag: "absent", text: undefined },
            { tag: "hour 24", text: "21/03/05,24:00:00-12" }, { tag: "minute 60", text: "21/03/05,14:60:00-12" },
            { tag: "no digits", text: "21/03/05,1a:30:00-12" }, { tag: "no day", text: "21/13/05,14:30:00-12" },
            { tag: "other marks", text: "21/03/05,14.30.00-12" }
        ]
    }
    function test_moments(row) {
        var moment = TimeChart.momentReader(root.convertDateTimeATToLocalTimeString)
        moment("21/03/05,00:00:01-12")      // what is remembered of a day must not leak into the next text
        compare(moment(row.text), row.iso ? new Date(row.iso).getTime() : NaN)
        compare(moment("21/03/05,00:00:01-12"), new Date("2021-03-05T00:00:01-03:00").getTime())
    }

    function test_numbers_data() {
        return [{ tag: "24.1", number: 24.1 }, { tag: "-0.5", number: -0.5 }, { tag: "0", number: 0 }, { tag: "0.0", number: 0 },
                { tag: "", number: NaN }, { tag: "  ", number: NaN }, { tag: "---", number: NaN }, { tag: "LOW", number: NaN },
                { tag: "12a", number: NaN }, { tag: "Infinity", number: NaN }]
    }
    function test_numbers(row) {
        compare(TimeChart.number(row.tag), row.number)
    }

    function test_nearest_data() {
        return [{ tag: "nothing", times: [], time: 5, place: -1 }, { tag: "one", times: [10], time: -100, place: 0 },
                { tag: "before", times: [10, 20, 30], time: 0, place: 0 }, { tag: "behind", times: [10, 20, 30], time: 99, place: 2 },
                { tag: "nearer to the next", times: [10, 20, 30], time: 16, place: 1 },
                { tag: "nearer to the last", times: [10, 20, 30], time: 14, place: 0 },
                { tag: "clock was set back", times: [10, 50, 20, 30], time: 48, sorted: false, place: 1 }]
    }
    function test_nearest(row) {
        compare(TimeChart.nearest(row.times, row.sorted !== false, row.time), row.place)
    }

    function shown(count, valueOf) {
        var chart = createTemporaryObject(made, test), all = points(count, valueOf)
        var other = points(count, function (i) { return 2000 + i % 10 })
        chart.show({ times: all.x, sorted: true, values: [all.y, other.y], names: ["a", "b"], low: 0, high: 2100 }, 1)
        waitForRendering(chart)
        return chart
    }

    function test_dayOnChart() {
        var chart = shown(86400, noise)
        tryVerify(function () { return chart.drawnColumns === chart.columnCount })
        verify(chart.columnCount > 100)
        verify(chart.drawn[0].x.length > chart.columnCount)
        verify(chart.drawn[0].x.length <= 2 * chart.columnCount)
        var before = chart.columnCount
        chart.anchors.fill = undefined
        chart.width = 500
        tryVerify(function () { return chart.columnCount < before && chart.drawnColumns === chart.columnCount })
        verify(chart.drawn[0].x.length <= 2 * chart.columnCount)
    }

    function test_keysReachEveryRecord() {
        var chart = shown(86400, function (i) { return i === 2 ? NaN : i % 1000 }), seen = []
        chart.forceActiveFocus()
        for (var i = 0; i < 4; ++i) {
            keyClick(Qt.Key_Right)
            seen.push(chart.record)
        }
        compare(seen, [0, 1, 3, 4])         // the third has no number
        keyClick(Qt.Key_Left)
        compare(chart.record, 3)
        keyClick(Qt.Key_End)
        compare(chart.record, 86399)
        keyClick(Qt.Key_Right)
        compare(chart.record, 86399)
        keyClick(Qt.Key_PageUp)
        compare(chart.record, 86399 - 4320)
        keyClick(Qt.Key_Home)
        compare(chart.record, 0)
        keyClick(Qt.Key_Down)
        compare([chart.current, chart.record], [1, 0])
        compare(chart.hoverText().split("<br>")[0], "b: 2,000.00")
        keyClick(Qt.Key_Up)
        compare(chart.current, 0)
        keyClick(Qt.Key_Escape)
        compare([chart.current, chart.record], [-1, -1])
    }

    function test_pointerFindsRecord() {
        var chart = shown(20, function (i) { return 100 })
        var x = chart.plot.x + (1000 * 7.2 - chart.from) / (chart.to - chart.from) * chart.plot.width
        mouseMove(chart, x, chart.plot.y + chart.plot.height - 10)
        compare([chart.record, chart.current], [7, 0])
        mouseMove(chart, x, chart.plot.y + 10)
        compare([chart.record, chart.current], [7, 1])
        mouseClick(chart, x, chart.plot.y + 10)     // holds the note
        mouseMove(chart, chart.plot.x + 5, chart.plot.y + 10)
        compare(chart.record, 7)
        keyClick(Qt.Key_Right)                      // the keys let it go
        compare(chart.record, 8)
    }

    function at(text) { return new Date("20" + text + "-03:00").getTime() }

    function test_ticks_data() {
        return [
            { tag: "one record", from: "21-03-05T07:59:00", to: "21-03-05T08:01:00", most: 4,
              ticks: ["07:59:00", "07:59:30", "08:00:00", "08:00:30", "08:01:00"] },
            { tag: "less than a second", from: "21-03-05T07:59:59.500", to: "21-03-05T08:00:00.500", most: 9, ticks: ["08:00:00"] },
            { tag: "odd ends", from: "21-03-05T08:03:10", to: "21-03-05T11:59:59", most: 5,
              ticks: ["09:00:00", "10:00:00", "11:00:00"] },
            { tag: "over midnight", from: "21-03-05T22:30:00", to: "21-03-06T01:10:00", most: 3, days: true,
              ticks: ["23:00:00 5 Mar 2021", "00:00:00 6 Mar 2021", "01:00:00"] },
            { tag: "midnight is the end", from: "21-03-05T12:00:00", to: "21-03-06T00:00:00", most: 2, days: true,
              ticks: ["12:00:00 5 Mar 2021", "18:00:00", "00:00:00 6 Mar 2021"] },
            { tag: "clock set on at midnight", from: "18-11-03T18:00:00", to: "18-11-04T12:00:00", most: 4, days: true,
              ticks: ["18:00:00 3 Nov 2018", "06:00:00 4 Nov 2018", "12:00:00"] },
            { tag: "a week", from: "21-03-05T08:00:00", to: "21-03-12T08:00:00", most: 4, days: true,
              ticks: ["00:00:00 7 Mar 2021", "00:00:00 9 Mar 2021", "00:00:00 11 Mar 2021"] }
        ]
    }
    function test_ticks(row) {
        var chart = createTemporaryObject(made, test)
        chart.severalDays = row.days === true
        var ticks = chart.timeTicks(at(row.from), at(row.to), row.most)
        compare(ticks.map(function (tick) { return tick.text.replace("\n", " ") }), row.ticks)
        verify(TimeChart.timeTicks(0, at(row.to), row.most).length <= row.most + 1)
    }

    function test_clockSetBack_data() {
        return [{ tag: "few", count: 40 }, { tag: "a day", count: 86400 }]
    }
    function test_clockSetBack(row) {
        var chart = createTemporaryObject(made, test), xs = [], ys = []
        for (var i = 0; i < row.count; ++i) {
            xs.push(1e12 + 1000 * (i < row.count / 2 ? i : i - row.count))     // the later half lies before the first record
            ys.push(i === row.count - 7 ? 99 : noise(i) / 100)
        }
        chart.show({ times: xs, sorted: false, values: [ys], names: ["a"], low: 0, high: 100 }, 1)
        waitForRendering(chart)
        compare(chart.from, 1e12 - 500 * row.count - 1000)
        compare(chart.to, 1e12 + 500 * row.count)
        var points = chart.drawn[0]
        verify(points.y.indexOf(99) >= 0)
        verify(points.x.length <= Math.max(row.count, 2 * chart.columnCount))
        var parts = TimeChart.pieces(points), reached = 0
        parts.forEach(function (part) {
            verify(part.begin <= reached)
            reached = part.end
            for (var i = part.begin + 1; i < part.end; ++i)
                verify(points.x[i] >= points.x[i - 1], "no curve runs back")
        })
        compare(reached, points.x.length)
        compare(chart.seriesCount, parts.length)
    }

    Component { id: note; ChartPointHover {} }

    function test_heldNoteRefusesChanges() {
        var held = createTemporaryObject(note, test, { x: 10, y: 20, y_text: "first", visible: true })
        held.holdOn = true
        held.x = 99
        held.y = 99
        held.y_text = "second"
        held.visible = false
        compare([held.x, held.y, held.y_text, held.visible], [10, 20, "first", true])
        held.holdOn = false
        held.y_text = "second"
        held.x = 99
        compare([held.x, held.y_text], [99, "second"])
    }
}
