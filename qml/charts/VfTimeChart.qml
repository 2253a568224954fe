// SPDX-License-Identifier: GPL-3.0-or-later
import QtQuick 2.15
import QtCharts 2.3
import "../widgets"
import "../widgets/texts.js" as Texts
import "timechart.js" as TimeChart

/// Curves over time. The series hold no more than a screen can show; the arrays here hold every record and answer the
/// pointer and the keys: left and right go by a record, page up and down by a twentieth, up and down change the curve.
/// The ticks of the time axis are drawn here, for the axis knows them only in equal parts of its range; so is the legend,
/// for a curve is several series (TimeChart.pieces).
FocusScope {
    id: timeChart

    // Title, names and suffix are markup: charts take every text for it.
    property alias title: chart.title
    property alias valueTitle: valueAxis.titleText
    property string valueSuffix
    /// How a curve is drawn: a LineSeries or a ScatterSeries.
    property Component curve: Component { LineSeries {} }
    /// Whether the records stand for themselves: curve is then a ScatterSeries, with marks wider than cellSize pixels.
    property bool scattered: false
    readonly property int cellSize: 5
    /// What marks the points of a curve, a ScatterSeries, or null.
    property Component marks: null
    /// What the series of each curve are made with: a color, and whatever else the kind has.
    property var looks: ["#1db0da", "#1341a6", "#88d41e", "#ff8e1a", "#398ca3"].map(function (color) { return { color: color } })

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
    /// The points drawn of each curve, {x, y}.
    property var drawn: []
    /// Whether the records lie on more than one day: the time axis then says which.
    property bool severalDays: false
    /// The moments of the time axis that are marked: {time, text}.
    readonly property var ticks: timeTicks(from, to, Math.max(2, Math.floor(plot.width / 110)))
    readonly property font textFont: Qt.font({ family: fontSans.name, pixelSize: Theme.smallSize })
    readonly property font headFont: Qt.font({ family: fontSans.name, pixelSize: Theme.smallSize, bold: true })
    readonly property alias seriesCount: chart.count
    /// The range of the values' axis.
    readonly property alias low: valueAxis.min
    readonly property alias high: valueAxis.max

    /// The numbers of an experiment's records for some roles; reading(record) is the part of a record that has them.
    function read(experiment, roles, reading) {
        var moment = TimeChart.momentReader(root.convertDateTimeATToLocalTimeString)
        return TimeChart.readings(experiment.logList || [], moment, roles, reading)
    }

    /// data: what read() gave, with names and the range low..high; so many seconds stay free before and behind, the same
    /// on both sides unless told.
    function show(data, before, behind) {
        forget()
        times = data.times
        sorted = data.sorted
        values = data.values
        names = data.names
        var reach = TimeChart.reach(times, sorted)
        var range = isNaN(data.low + data.high) ? TimeChart.extremes(values) : data
        chart.removeAllSeries()     // the axes change while no curve has to follow
        severalDays = reach.first < new Date(reach.last).setHours(0, 0, 0, 0)
        timeAxis.min = new Date(reach.first - TimeChart.margin(before))
        timeAxis.max = new Date(reach.last + TimeChart.margin(behind === undefined ? before : behind))
        valueAxis.min = isNaN(range.low) ? 0 : range.low
        valueAxis.max = isNaN(range.high) ? 1 : range.high
        valueAxis.tickCount = 5     // what the last nice numbers came to would else count
        valueAxis.applyNiceNumbers()
        draw()
    }

    function draw() {
        chart.removeAllSeries()
        drawnColumns = columnCount
        drawn = values.map(function (curve) {
            return scattered ? TimeChart.cells(times, curve, Math.ceil(plot.width / cellSize), Math.ceil(plot.height / cellSize),
                                               from, to, valueAxis.min, valueAxis.max)
                             : TimeChart.columns(times, curve, drawnColumns, from, to, sorted)
        })
        drawn.forEach(function (points, k) {
            [curve, marks].filter(Boolean).forEach(function (kind) {
                var pieces = scattered ? [{ begin: 0, end: points.x.length }] : TimeChart.pieces(points)
                pieces.forEach(function (piece) {
                    drawPiece(kind, points, piece, looks[k % looks.length])
                })
            })
        })
    }

    function drawPiece(kind, points, piece, look) {
        // A series on a chart redraws with every point: fill it first.
        var series = kind.createObject(workshop, look)
        for (var i = piece.begin; i < piece.end; ++i)
            series.append(points.x[i], points.y[i])
        if (series.count === 1 && series.capStyle !== undefined) {      // a line of one point would not be seen
            series.width = 6
            series.pointsVisible = true
        }
        chart.data.push(series)
        chart.setAxisX(timeAxis, series)
        chart.setAxisY(valueAxis, series)
    }

    function timeTicks(begin, end, most) {
        var day = ""
        return TimeChart.timeTicks(begin, end, most).map(function (time) {
            var moment = new Date(time), newDay = moment.toLocaleDateString(Qt.locale(), Locale.ShortFormat)
            var text = Qt.formatTime(moment, timeAxis.clock) + (severalDays && newDay !== day ? "\n" + newDay : "")
            day = newDay
            return { time: time, text: text }
        })
    }

    function placeOf(time) { return plot.x + (time - from) / (to - from) * plot.width }

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
             + "<br>" + (severalDays ? new Date(times[record]).toLocaleDateString(Qt.locale(), Locale.ShortFormat) + " " : "")
             + Texts.timeText(new Date(times[record]))
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
    Keys.onDeletePressed: forget()
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

        anchors { left: parent.left; right: parent.right; top: parent.top; bottom: legend.top }
        antialiasing: true
        localizeNumbers: true
        theme: ChartView.ChartThemeBlueNcs
        backgroundColor: Theme.ground
        titleColor: Theme.text
        legend.visible: false
        titleFont: timeChart.headFont

        DateTimeAxis {
            id: timeAxis

            readonly property string clock: "hh:mm:ss"

            format: timeChart.severalDays ? clock + "'<br>'" + clock : clock
            gridVisible: false
            labelsColor: "transparent"      // they keep the room in which those of the ticks stand
            lineVisible: false
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

    Repeater {
        model: timeChart.ticks
        Item {
            x: Math.round(timeChart.placeOf(modelData.time))
            y: timeChart.plot.y
            Rectangle { width: 1; height: timeChart.plot.height + 5; color: Theme.text; opacity: 0.12 }
            VfText {
                anchors.horizontalCenter: parent.horizontalCenter
                y: timeChart.plot.height + 8
                font: timeChart.textFont
                horizontalAlignment: Text.AlignHCenter
                text: modelData.text
            }
        }
    }

    Flow {
        id: legend

        readonly property real oneRow: {
            var sum = 0
            for (var i = 0; i < children.length; ++i)
                sum += children[i].width + spacing
            return sum
        }

        anchors { horizontalCenter: parent.horizontalCenter; bottom: parent.bottom; bottomMargin: Theme.gap }
        spacing: Theme.spacing
        width: Math.min(parent.width, oneRow)

        Repeater {
            model: timeChart.names.length > 1 ? timeChart.names : [] // the title tells of a single curve
            Row {
                spacing: 5
                Rectangle {
                    anchors.verticalCenter: parent.verticalCenter
                    width: 9
                    height: 9
                    color: timeChart.looks[index % timeChart.looks.length].color
                }
                VfText { font: timeChart.textFont; text: modelData; textFormat: Text.RichText }
            }
        }
    }

    FocusFrame { anchors.margins: 0; shown: timeChart.activeFocus }
    VfSpoken { active: timeChart.activeFocus; text: Texts.plain(hover.y_text) }

    MouseArea {
        acceptedButtons: Qt.LeftButton | Qt.RightButton
        anchors.fill: parent
        hoverEnabled: true
        onEntered: timeChart.pointAt(mouseX, mouseY)
        onPositionChanged: timeChart.pointAt(mouseX, mouseY)
        onExited: if (!timeChart.activeFocus && !hover.holdOn) timeChart.forget()
        onClicked: {
            timeChart.forceActiveFocus()
            if (mouse.button === Qt.RightButton)
                return timeChart.forget()
            timeChart.pointAt(mouse.x, mouse.y)
            hover.holdOn = !hover.holdOn && timeChart.current >= 0
        }
    }

    ScatterPointHover {
        id: marker

        readonly property real pointX: timeChart.current < 0 ? 0 : timeChart.placeOf(timeChart.times[timeChart.record])
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
