// SPDX-License-Identifier: GPL-3.0-or-later
import QtQuick 2.15
import "../../qml/widgets"

/// Table, chart and results of a heat-stress unit in three tabs.
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
    readonly property alias currentTab: tabs.currentTab
    readonly property var table: tableTab.item ? tableTab.item.table : null
    readonly property alias temperatureChart: chartTab.item
    readonly property var resultItems: resultTab.item ? resultTab.item.items : null

    function show(parsed, unitFigures, unitReading) {
        experiment = parsed
        figures = unitFigures
        reading = unitReading
        tabs.renew()
    }

    /// Lets go of the records.
    function forget() {
        experiment = null
        if (table)
            table.rows = []
        if (temperatureChart)
            temperatureChart.clear()
    }

    function setTab(tab) { tabs.setTab(tab) }

    VfTabs {
        id: tabs

        anchors.fill: parent
        onFill: {
            if (!view.experiment)
                page.stale = true
            else if (page === tableTab)
                view.table.show(view.experiment.logList || [])
            else if (page === chartTab)
                page.item.populateSeries(view.experiment, view.figures, view.reading, view.indoorRole, view.outdoorRole)
        }

        VfTabPage { id: tableTab; title: qsTr("Table"); sourceComponent: tablePage }
        VfTabPage { id: chartTab; title: qsTr("Temperature x Time"); sourceComponent: view.chart }
        VfTabPage { id: resultTab; title: qsTr("Results"); sourceComponent: resultPage }
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
