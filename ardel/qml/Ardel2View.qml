// SPDX-License-Identifier: GPL-3.0-or-later
import QtQuick 2.15
import QtQuick.Controls 2.15
import "../../qml/widgets"
import "../../qml/pages"
import "../../qml/widgets/texts.js" as Texts
import "hearingprotector.js" as Protector

/// The records beside what was made of them, in tabs, and the working day that the doses are computed for.
Item {
    id: view

    property var experiment: null
    readonly property var results: experiment && experiment.results || {}
    readonly property bool octavePresent: (results.leqList || []).length > 0
    readonly property bool protectorPresent: Protector.octaves(results) !== null
    readonly property alias currentTab: tabs.currentTab
    readonly property alias table: records
    readonly property alias workingHours: hours
    readonly property alias resultPage: resultTab.item
    readonly property alias noiseChart: noiseTab.item
    readonly property alias histogram: histogramTab.item
    readonly property alias octaveChart: octaveTab.item
    readonly property alias protector: protectorTab.item

    /// Shows another measurement, its levels over time first.
    function show(parsed) {
        refresh(parsed)
        records.show(parsed.logList || [])
        tabs.setTab(1)
        tabs.renew()
    }

    /// Shows other results of the same measurement.
    function refresh(parsed) {
        experiment = parsed
        hours.show(results.workingHours)
    }

    /// Lets go of the records.
    function forget() {
        experiment = null
        records.rows = []
        if (noiseChart)
            noiseChart.clear()
    }

    function setTab(tab) { tabs.setTab(tab) }

    Rectangle { anchors.fill: records; color: Theme.ground }
    VfRecordsTable {
        id: records

        anchors { top: parent.top; bottom: parent.bottom; left: parent.left }
        width: columnsWidth + barWidth
        columns: [{ role: "level", title: qsTr("Level [dB]"), width: 100 }]
    }

    VfWorkingHours {
        id: hours

        anchors { left: tabs.left; right: tabs.right; top: parent.top }
    }

    VfTabs {
        id: tabs

        anchors {
            left: records.right; right: parent.right; top: hours.bottom; bottom: parent.bottom
            leftMargin: Theme.spacing; topMargin: Theme.gap
        }
        onFill: {
            if (!view.experiment)
                page.stale = true
            else if (page === noiseTab)
                view.noiseChart.populateSeries(view.experiment)
            else if (page === histogramTab)
                view.histogram.populateSeries(view.experiment)
            else if (page === octaveTab)
                view.octaveChart.populateLeqChart(view.results)
            else if (page === protectorTab)
                view.protector.populateHearingProtect(view.results)
        }

        VfTabPage { id: resultTab; title: qsTr("Results"); sourceComponent: resultPage }
        VfTabPage { id: noiseTab; title: qsTr("Noise x Time"); sourceComponent: Ardel2NoiseChart {} }
        VfTabPage { id: histogramTab; title: qsTr("Histogram"); sourceComponent: Ardel2HistogramChart {} }
        VfTabPage {
            id: octaveTab

            present: view.octavePresent
            title: qsTr("L<sub>eq</sub> x ") + qsTr("Octave")
            sourceComponent: Ardel2LeqChart {}
        }
        VfTabPage {
            id: protectorTab

            present: view.protectorPresent
            title: qsTr("Hearing Protector")
            sourceComponent: Ardel2HearingProtector {}
        }
    }

    Component {
        id: resultPage

        Flickable {
            readonly property alias items: dosimeters

            boundsBehavior: Flickable.StopAtBounds
            clip: true
            contentHeight: column.implicitHeight
            ScrollBar.vertical: ScrollBar {}

            Column {
                id: column

                width: parent.width
                spacing: Theme.spacing

                Row {
                    spacing: Theme.spacing

                    Repeater {
                        id: dosimeters

                        model: ["Dos1", "Dos2", "DosUSER"]
                        Ardel2ResultItem {
                            width: (column.width - 2 * Theme.spacing) / 3
                            dosimeter: modelData
                            results: view.results
                        }
                    }
                }
                VfInfoElement { label: qsTr("115 dB peaks occurrence:"); value: Texts.text(view.results.nPk) }
            }
        }
    }
}
