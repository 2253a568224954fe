// SPDX-License-Identifier: GPL-3.0-or-later
import QtQuick 2.15
import QtQuick.Controls 2.15
import "../../qml/widgets"
import "../../qml/charts"
import "../../qml/charts/octaves.js" as Octaves
import "soundlevel.js" as SoundLevel

/// The level over time, the spectrum, and in a third tab the records beside the figures that the instrument computed.
Item {
    id: view

    /// The groups of figures of some results: [{label, columns, figures}] (VfFigures).
    property var groupsOf: function (results) { return [] }
    property var experiment: null
    readonly property var results: experiment && experiment.results || {}
    readonly property string levelSymbol: SoundLevel.symbol((results.freqWeighting || "") + "eq")
    readonly property alias currentTab: tabs.currentTab
    readonly property alias levelChart: levelTab.item
    readonly property alias octaveChart: octaveTab.item
    readonly property var table: resultTab.item ? resultTab.item.table : null
    readonly property var groups: resultTab.item ? resultTab.item.groups : null

    function show(parsed) {
        experiment = parsed
        tabs.renew()
    }

    /// Lets go of the records.
    function forget() {
        experiment = null
        if (levelChart)
            levelChart.clear()
        if (table)
            table.rows = []
    }

    function setTab(tab) { tabs.setTab(tab) }

    VfTabs {
        id: tabs

        anchors.fill: parent
        onFill: {
            if (!view.experiment)
                page.stale = true
            else if (page === levelTab)
                view.levelChart.populateSeries(view.experiment)
            else if (page === octaveTab)
                view.octaveChart.show(view.results.leqList || [], Octaves.step(view.results.octaveAnalysis))
            else
                view.table.show(view.experiment.logList || [])
        }

        VfTabPage { id: levelTab; title: view.levelSymbol + " x " + qsTr("Time"); sourceComponent: SoundLevelChart {} }
        VfTabPage { id: octaveTab; title: qsTr("L<sub>eq</sub> x Octave"); sourceComponent: OctaveChart {} }
        VfTabPage { id: resultTab; title: qsTr("Results"); sourceComponent: resultPage }
    }

    Component {
        id: resultPage

        Item {
            readonly property alias table: records
            readonly property alias groups: boxes

            Rectangle { anchors.fill: records; color: Theme.ground }
            VfRecordsTable {
                id: records

                anchors { top: parent.top; bottom: parent.bottom; left: parent.left }
                width: columnsWidth + barWidth
                columns: [{ role: "level", title: view.levelSymbol + " [dB]", width: 110 }]
            }
            Flickable {
                anchors {
                    left: records.right; right: parent.right; top: parent.top; bottom: parent.bottom
                    leftMargin: Theme.spacing
                }
                boundsBehavior: Flickable.StopAtBounds
                clip: true
                contentHeight: flow.implicitHeight
                ScrollBar.vertical: ScrollBar {}

                Flow {
                    id: flow

                    width: parent.width
                    spacing: Theme.spacing

                    Repeater {
                        id: boxes

                        model: view.groupsOf(view.results)
                        VfFigures {
                            columns: modelData.columns
                            figures: modelData.figures
                            label: modelData.label
                        }
                    }
                }
            }
        }
    }
}
