// SPDX-License-Identifier: GPL-3.0-or-later
import QtQuick 2.15
import QtCharts 2.3
import "../widgets"
import "../widgets/texts.js" as Texts
import "timechart.js" as TimeChart

/// Curves over time. The series hold no more than a screen can show; the arrays here hold every record and answer the
/// pointer and the keys: left and right go by a record, page up and down by a twentieth, up and down change the curve.
FocusScope {
    id: timeChart

    // Title, names and suffix are markup: charts take every text for it.
    property alias title: chart.title
    property alias valueTitle: valueAxis.titleText
    property string valueSuffix
    /// How a curve is drawn: a LineSeries or a ScatterSeries.
    property Component curve: Component { LineSeries {} }

    /// The moments of the records in ms, and for each curve its name and the records' numbers.
    property var times: []
    property bool sorted: true
    property var names: []
    property var values: []
    /// What is pointed at: the place of a record and of a curve, -1 for none.
    property int record: -1
    property int current: -1

    readonly property rect plot: chart.plotArea
    readonly property real from: timeAxis.min.getTime()
    readonly property real to: timeAxis.max.getTime()
    /// One column of the drawing is two pixels wide and holds two points of a curve at most.
    readonly property int columnCount: Math.max(1, Math.floor(plot.width / 2))
    property int drawnColumns: 0
    readonly property font textFont: Qt.font({ family: fontSans.name, pixelSize: Theme.smallSize })
    readonly property font headFont: Qt.font({ family: fontSans.name, pixelSize: Theme.smallSize, bold: true })
    readonly property alias seriesCount: chart.count
    function drawnSeries(k) { return chart.series(k) }

    /// The numbers of an experiment's records for some roles; reading(record) is the part of a record that has them.
    function read(experiment, roles, reading) {
        var moment = TimeChart.momentReader(root.convertDateTimeATToLocalTimeString)
        return TimeChart.readings(experiment.logList || [], moment, roles, reading)
    }

    /// data: what read() gave, with names and the range low..high; sampleTime in seconds stays free on both sides.
    function show(data, sampleTime) {
        forget()
        times = data.times
        sorted = data.sorted
        values = data.values
        names = data.names
        var margin = (Number(sampleTime) || 0) * 1000, first = times.length > 0 ? times[0] : 0
        var last = times.length > 0 ? times[times.length - 1] : 0
        var range = isNaN(data.low + data.high) ? TimeChart.extremes(values) : data
        chart.removeAllSeries()     // the axes change while no curve has to follow
        timeAxis.min = new Date(first - margin)
        timeAxis.max = new Date(Math.max(last, first) + Math.max(margin, 500))
        valueAxis.min = isNaN(range.low) ? 0 : range.low
        valueAxis.max = isNaN(range.high) ? 1 : range.high
        valueAxis.tickCount = 5     // what the last nice numbers came to would else count
        valueAxis.applyNiceNumbers()
        draw()
    }

    function draw() {
        chart.removeAllSeries()
        drawnColumns = columnCount
        for (var k = 0; k < values.length; ++k) {
            var points = TimeChart.columns(times, values[k], drawnColumns, from, to)
            // A series on a chart redraws with every point: fill it first.
            var series = timeChart.curve.createObject(workshop, { name: names[k] })
            for (var i = 0; i < points.x.length; ++i)
                series.append(points.x[i], points.y[i])
            chart.data.push(series)
            chart.setAxisX(timeAxis, series)
            chart.setAxisY(valueAxis, series)
        }
    }

    /// Lets go of the records; the curves stay until others are shown.
    function clear() {
        forget()
        times = []
        values = []
    }

    function forget() {
        hover.holdOn = false
        current = -1
        record = -1
    }

    function pointAt(x, y) {
        if (hover.holdOn)
            return
        var time = from + (x - plot.x) / plot.width * (to - from)
        var value = valueAxis.max - (y - plot.y) / plot.height * (valueAxis.max - valueAxis.min)
        var place = TimeChart.nearest(times, sorted, time)
        point(TimeChart.nearestCurve(values, place, value), place)
    }

    /// The record by records further on the curve pointed at; the first step points at the curve's first record.
    function step(by) {
        hover.holdOn = false
        var curve = Math.max(0, current)
        if (curve < values.length)
            point(curve, TimeChart.step(values[curve], current < 0 ? -1 : record, current < 0 ? 1 : by))
    }

    function changeCurve(by) {
        hover.holdOn = false
        for (var k = current + by; k >= 0 && k < values.length; k += by)
            if (!isNaN(values[k][Math.max(0, record)]))
                return point(k, Math.max(0, record))
    }

    function point(curve, place) {
        current = -1
        record = place
        current = place < 0 ? -1 : curve
    }

    function hoverText() {
        if (current < 0)
            return ""
        return names[current] + ": " + Number(values[current][record]).toLocaleString(Qt.locale()) + valueSuffix
             + "<br>" + Texts.timeText(new Date(times[record]))
    }

    activeFocusOnTab: true
    Accessible.role: Accessible.Chart
    Accessible.name: title
    Accessible.description: Texts.plain(hover.y_text)
    Keys.onLeftPressed: step(-1)
    Keys.onRightPressed: step(1)
    Keys.onUpPressed: changeCurve(-1)
    Keys.onDownPressed: changeCurve(1)
    Keys.onSpacePressed: hover.holdOn = !hover.holdOn && current >= 0
    Keys.onEscapePressed: forget()
    Keys.onPressed: {
        var page = Math.max(1, Math.round(times.length / 20))
        var by = { [Qt.Key_PageUp]: -page, [Qt.Key_PageDown]: page,
                   [Qt.Key_Home]: -times.length, [Qt.Key_End]: times.length }[event.key]
        if (by === undefined)
            return
        step(by)
        event.accepted = true
    }
    onColumnCountChanged: if (times.length > 2 * Math.min(columnCount, drawnColumns)) redraw.restart()

    Timer { id: redraw; interval: 50; onTriggered: if (timeChart.drawnColumns !== timeChart.columnCount) timeChart.draw() }

    Item { id: workshop; visible: false }

    ChartView {
        id: chart

        anchors.fill: parent
        antialiasing: true
        localizeNumbers: true
        theme: ChartView.ChartThemeBlueNcs
        backgroundColor: Theme.ground
        titleColor: Theme.text
        legend.alignment: Qt.AlignBottom
        legend.labelColor: Theme.text
        legend.font: timeChart.textFont
        titleFont: timeChart.headFont

        DateTimeAxis {
            id: timeAxis

            format: "hh:mm:ss"
            labelsColor: Theme.text
            labelsFont: timeChart.textFont
            titleFont: timeChart.headFont
            titleText: qsTr("Time")
        }
        ValueAxis {
            id: valueAxis

            labelsColor: Theme.text
            labelsFont: timeChart.textFont
            minorTickCount: 5
            titleFont: timeChart.headFont
        }
    }

    FocusFrame { anchors.margins: 0; shown: timeChart.activeFocus }

    MouseArea {
        anchors.fill: parent
        hoverEnabled: true
        onEntered: timeChart.pointAt(mouseX, mouseY)
        onPositionChanged: timeChart.pointAt(mouseX, mouseY)
        onExited: if (!timeChart.activeFocus && !hover.holdOn) timeChart.forget()
        onClicked: {
            timeChart.forceActiveFocus()
            timeChart.pointAt(mouse.x, mouse.y)
            hover.holdOn = !hover.holdOn && timeChart.current >= 0
        }
    }

    ScatterPointHover {
        id: marker

        readonly property real pointX: timeChart.current < 0 ? 0 : timeChart.plot.x
            + (timeChart.times[timeChart.record] - timeChart.from) / (timeChart.to - timeChart.from) * timeChart.plot.width
        readonly property real pointY: timeChart.current < 0 ? 0 : timeChart.plot.y
            + (valueAxis.max - timeChart.values[timeChart.current][timeChart.record]) / (valueAxis.max - valueAxis.min)
            * timeChart.plot.height

        x: pointX - width / 2
        y: Math.max(timeChart.plot.y, Math.min(timeChart.plot.y + timeChart.plot.height, pointY)) - height / 2
        visible: timeChart.current >= 0
    }

    ChartPointHover { id: hover }

    // Bindings, for the note puts its old values back while it is held.
    Binding { target: hover; property: "y_text"; value: timeChart.hoverText() }
    Binding { target: hover; property: "visible"; value: timeChart.current >= 0 }
    Binding { target: hover; property: "x"; value: Math.max(0, Math.min(timeChart.width - hover.width, marker.x + 16)) }
    Binding { target: hover; property: "y"; value: Math.max(0, marker.y - hover.height - 6) }
}
