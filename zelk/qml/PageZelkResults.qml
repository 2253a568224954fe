// SPDX-License-Identifier: GPL-3.0-or-later
import QtQuick 2.15
import "../../qml/pages"
import "../../qml/widgets"
import "zelk.js" as Zelk

/// The results of the logger. What a module measures it says itself: columns, charts and figures follow from that.
VfResultsPage {
    function fill(parsed) { viewItem.show(parsed) }

    pageTitle: qsTr("Zelk - Results")
    productName: "ZELK"
    info: ZelkExpInfo {}
    reportWindow: ZelkPrinterConfiguration {}
    view: Item {
        id: view

        property var experiment: null
        readonly property var results: experiment && experiment.results || {}
        readonly property var quantities: Zelk.quantities(results)
        readonly property alias currentTab: tabs.currentTab
        readonly property var table: tableTab.item ? tableTab.item.table : null
        readonly property alias charts: chartTab.item
        readonly property alias figures: resultTab.item

        function show(parsed) {
            experiment = parsed
            tabs.renew()
        }

        /// Lets go of the records.
        function forget() {
            experiment = null
            if (table)
                table.rows = []
            if (charts)
                charts.forget()
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
                    view.charts.show(view.experiment, view.quantities)
            }

            VfTabPage { id: tableTab; title: qsTr("Table"); sourceComponent: tablePage }
            VfTabPage { id: chartTab; title: qsTr("Charts"); sourceComponent: ZelkChartView {} }
            VfTabPage {
                id: resultTab

                title: qsTr("Results")
                sourceComponent: ZelkFinalResults { results: view.results; quantities: view.quantities }
            }
        }

        Component {
            id: tablePage

            Item {
                readonly property alias table: records

                FontMetrics { id: headFont; font { family: fontSans.name; pixelSize: 12; bold: true } }
                Rectangle { anchors.fill: records; color: Theme.ground }
                VfRecordsTable {
                    id: records

                    anchors { top: parent.top; bottom: parent.bottom; horizontalCenter: parent.horizontalCenter }
                    width: Math.min(parent.width, columnsWidth + barWidth, 800)
                    reading: function (record) { return record.physicalQuantitiesList || [] }
                    cellOf: function (values, name, place) { return values[place] } // names may be there twice
                    columns: view.quantities.map(function (quantity) {
                        var title = Zelk.title(quantity)
                        return { role: quantity.name, title: title,
                                 width: Math.max(90, Math.ceil(headFont.advanceWidth(Zelk.caption(quantity))) + 16) }
                    })
                }
            }
        }
    }
}
