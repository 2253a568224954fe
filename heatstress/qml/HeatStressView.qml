// SPDX-License-Identifier: GPL-3.0-or-later
import QtQuick 2.15
import QtQuick.Controls 2.15
import "../../qml/widgets"

/// Table, chart and results of a heat-stress unit in three tabs. A tab is made when it is first looked at, and takes over
/// a new experiment when it is looked at again.
Item {
    id: view

    /// The keys of the two WBGT values in a record; those of their averages end in "Med".
    property string indoorRole
    property string outdoorRole
    property Component chart: HeatStressChart {}
    property Component resultItem: HeatStressResultItem {}
    /// The parsed experiment, the unit's figures, and the unit's part of a record.
    property var experiment: null
    property var figures: ({})
    property var reading: function (record) { return record }
    readonly property string unity: figures.unity || ""
    readonly property alias currentTab: swipe.currentIndex
    readonly property var table: tableTab.item ? tableTab.item.table : null
    readonly property alias temperatureChart: chartTab.item
    readonly property var resultItems: resultTab.item ? resultTab.item.items : null

    function show(parsed, unitFigures, unitReading) {
        experiment = parsed
        figures = unitFigures
        reading = unitReading
        swipe.stale = [true, true, true]
        fill(swipe.currentIndex)
    }

    /// Lets go of the records.
    function forget() {
        experiment = null
        if (table)
            table.rows = []
        if (temperatureChart)
            temperatureChart.clear()
    }

    function fill(tab) {
        if (!experiment || !swipe.stale[tab])
            return
        swipe.stale[tab] = false
        var loader = [tableTab, chartTab, resultTab][tab]
        loader.active = true
        if (loader === tableTab)
            table.show(experiment.logList || [])
        if (loader === chartTab)
            loader.item.populateSeries(experiment, figures, reading, indoorRole, outdoorRole)
    }

    function setTab(tab) { tabs.setCurrentIndex(tab) }

    TabBar {
        id: tabs

        anchors { left: parent.left; right: parent.right }
        background: Rectangle { color: Theme.quietGround; border { width: 1; color: Theme.line } }
        currentIndex: swipe.currentIndex
        spacing: 1
        VfTabButton { text: qsTr("Table") }
        VfTabButton { text: qsTr("Temperature x Time") }
        VfTabButton { text: qsTr("Results") }
    }

    SwipeView {
        id: swipe

        property var stale: [true, true, true]

        anchors { left: parent.left; right: parent.right; top: tabs.bottom; bottom: parent.bottom; topMargin: Theme.gap }
        clip: true
        currentIndex: tabs.currentIndex
        onCurrentIndexChanged: view.fill(currentIndex)

        Loader { id: tableTab; active: false; sourceComponent: tablePage }
        Loader { id: chartTab; active: false; sourceComponent: view.chart }
        Loader { id: resultTab; active: false; sourceComponent: resultPage }
    }

    Component {
        id: tablePage

        Item {
            readonly property alias table: records

            Rectangle { anchors.fill: records; color: Theme.ground }
            HeatStressTable {
                id: records

                anchors { top: parent.top; bottom: parent.bottom; horizontalCenter: parent.horizontalCenter }
                width: Math.min(parent.width, columnsWidth + barWidth)
                indoorRole: view.indoorRole
                outdoorRole: view.outdoorRole
                reading: view.reading
                unity: view.unity
            }
        }
    }

    Component {
        id: resultPage

        Item {
            readonly property alias items: boxes

            Row {
                anchors { top: parent.top; horizontalCenter: parent.horizontalCenter; topMargin: Theme.margin }
                spacing: Theme.spacing
                Repeater {
                    id: boxes

                    delegate: view.resultItem
                    model: [
                        { label: qsTr("Wet bulb"), maximum: "wetTMax", minimum: "wetTMin" },
                        { label: qsTr("Dry bulb"), maximum: "dryTMax", minimum: "dryTMin" },
                        { label: qsTr("Globe"), maximum: "globeTMax", minimum: "globeTMin" },
                        { label: qsTr("WBGTi"), average: view.indoorRole + "Med", decides: true },
                        { label: qsTr("WBGTo"), average: view.outdoorRole + "Med", decides: true }
                    ].map(function (row) { return Object.assign({ figures: view.figures }, row) })
                }
            }
        }
    }
}
