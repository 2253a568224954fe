// SPDX-License-Identifier: GPL-3.0-or-later
import QtQuick 2.15
import QtCharts 2.3
import "../widgets"
import "../widgets/texts.js" as Texts
import "bars.js" as Bars

/// Bars over categories. What is pointed at, by the pointer or with left and right, is told in a note.
FocusScope {
    id: barChart

    // Title, axis titles and suffixes are markup: charts take every text for it.
    property alias title: chart.title
    property alias valueTitle: valueAxis.titleText
    property alias categoryTitle: categoryAxis.titleText
    property string valueSuffix
    property string categorySuffix: "Hz"
    property string seriesName
    property color barColor: "#1db0da"
    /// The categories stand upright, in smaller letters.
    property bool dense: false
    /// Whether the value axis ends at the nice number behind the maximum.
    property bool nice: false
    readonly property int pointSize: dense ? 10 : 12

    property var labels: []
    property var values: []
    /// The bar that is pointed at, -1 for none.
    property int current: -1
    readonly property rect plot: chart.plotArea
    readonly property real slot: plot.width / Math.max(1, values.length)
    /// Whether the bars are too narrow for the labels of them all.
    readonly property bool crowded: slot < 24

    /// A value that is NaN has no bar; no bar ends above maximum.
    function show(categories, numbers, maximum) {
        forget()
        bars.clear()
        labels = categories
        values = numbers
        mark(maximum)
        if (nice) {
            valueAxis.tickCount = 5     // what the last nice numbers came to would else count
            valueAxis.applyNiceNumbers()
            mark(valueAxis.max)
        }
        categoryAxis.clear()
        // Categories of one name would be one: marks that nobody sees tell them apart. Without any, the axis would go on
        // drawing those it had.
        categoryAxis.categories = categories.length === 0 ? ["\u200b"] : categories.map(function (label, i) {
            return label + new Array(i + 1).join("\u200b")
        })
        bars.append(seriesName, numbers.map(function (value) { return isNaN(value) ? 0 : value }))
        bars.at(0).color = barColor
        bars.at(0).borderColor = "transparent"
    }

    /// Marks the axis from 0 to maximum at round values, as many as there is room for.
    function mark(maximum) {
        var step = Bars.step(maximum, Math.max(3, Math.floor((height - 120) / 25)))
        // The axis makes all its marks at once: it must never see a long range with small steps.
        valueAxis.tickInterval = Math.max(valueAxis.tickInterval, step)
        valueAxis.max = maximum
        valueAxis.tickInterval = step
        valueAxis.labelFormat = "%." + Bars.decimals(step) + "f"
    }

    function forget() {
        hover.holdOn = false
        current = -1
    }

    function pointAt(x) {
        var place = Math.floor((x - plot.x) / slot)
        if (!hover.holdOn)
            current = place >= 0 && place < values.length ? place : -1
    }

    function step(by) {
        hover.holdOn = false
        if (values.length > 0)
            current = current < 0 ? 0 : Math.max(0, Math.min(values.length - 1, current + by))
    }

    function hoverText() {
        if (current < 0 || current >= values.length)
            return ""
        var value = values[current]
        return labels[current] + categorySuffix + "<br>"
             + (isNaN(value) ? Texts.absent : value.toLocaleString(Qt.locale()) + valueSuffix)
    }

    onHeightChanged: mark(valueAxis.max)
    onBarColorChanged: if (bars.count > 0) bars.at(0).color = barColor
    activeFocusOnTab: true
    Accessible.role: Accessible.Chart
    Accessible.name: Texts.plain(title)
    Accessible.description: Texts.plain(hover.y_text)
    Keys.onLeftPressed: step(-1)
    Keys.onRightPressed: step(1)
    Keys.onSpacePressed: hover.holdOn = !hover.holdOn && current >= 0
    Keys.onEscapePressed: forget()
    Keys.onDeletePressed: forget()

    ChartView {
        id: chart

        anchors.fill: parent
        antialiasing: true
        localizeNumbers: true
        backgroundColor: Theme.ground
        titleColor: Theme.text
        titleFont: valueAxis.titleFont
        legend.visible: false

        BarSeries {
            id: bars

            axisX: BarCategoryAxis {
                id: categoryAxis

                gridVisible: false
                labelsAngle: barChart.dense && !barChart.crowded ? 80 : 0.001 // an angle keeps labels whole that are wider than their bar
                labelsColor: barChart.crowded ? "transparent" : Theme.text
                labelsFont: Qt.font({ family: fontSans.name, pointSize: barChart.pointSize })
                titleFont: valueAxis.titleFont
                titleVisible: barChart.values.length > 0 // without categories it has no place
            }
            axisY: ValueAxis {
                id: valueAxis

                min: 0
                tickInterval: 1
                tickType: ValueAxis.TicksDynamic
                labelsColor: Theme.text
                labelsFont: Qt.font({ family: fontSans.name, pixelSize: Theme.smallSize })
                titleFont: Qt.font({ family: fontSans.name, pixelSize: Theme.smallSize, bold: true })
            }
        }
    }

    Repeater {
        model: barChart.crowded ? barChart.labels : []
        VfText {
            x: barChart.plot.x + (index + 0.5) * barChart.slot - width / 2
            y: barChart.plot.y + barChart.plot.height + 8
            font.pixelSize: Theme.smallSize
            text: modelData
            visible: index % Math.ceil(32 / barChart.slot) === 0
        }
    }

    FocusFrame { anchors.margins: 0; shown: barChart.activeFocus }
    VfSpoken { active: barChart.activeFocus; text: Texts.plain(hover.y_text) }

    MouseArea {
        anchors.fill: parent
        hoverEnabled: true
        onEntered: barChart.pointAt(mouseX)
        onPositionChanged: barChart.pointAt(mouseX)
        onExited: if (!barChart.activeFocus && !hover.holdOn) barChart.forget()
        onClicked: {
            barChart.forceActiveFocus()
            barChart.pointAt(mouse.x)
            hover.holdOn = !hover.holdOn && barChart.current >= 0
        }
    }

    ChartPointHover { id: hover }

    // Bindings, for the note puts its old values back while it is held.
    Binding { target: hover; property: "y_text"; value: barChart.hoverText() }
    Binding { target: hover; property: "visible"; value: barChart.current >= 0 }
    Binding {
        target: hover
        property: "x"
        value: Math.max(0, Math.min(barChart.width - hover.width,
                                    barChart.plot.x + (barChart.current + 0.5) * barChart.slot - hover.width / 2))
    }
    Binding {
        target: hover
        property: "y"
        value: Math.max(0, barChart.plot.y + barChart.plot.height - hover.height - 6
                        - barChart.plot.height * Math.max(0, barChart.values[barChart.current] || 0) / valueAxis.max)
    }
}
