// SPDX-License-Identifier: GPL-3.0-or-later
import QtQuick 2.15
import "../../qml/widgets"
import "../../qml/widgets/texts.js" as Texts
import "../../qml/pages"
import "lomtrix.js" as Lomtrix

/// What a working day comes to, above the records of one of its measurements and their charts.
Item {
    id: view

    property var experiment: null
    readonly property var results: experiment && experiment.results || {}
    readonly property string acceleration: " [" + Lomtrix.accelerationUnit + "]"
    readonly property string dose: " [" + Lomtrix.doseUnit(root.numberToLocalString) + "]"
    readonly property alias currentTab: tabs.currentTab
    readonly property alias evaluation: evaluation
    readonly property alias workingHours: hours
    readonly property alias accelerationChart: accelerationTab.item
    readonly property alias octaveChart: octaveTab.item
    readonly property var table: tableTab.item ? tableTab.item.table : null

    function show(parsed) {
        refresh(parsed)
        tabs.renew()
    }

    /// Shows results that were computed anew for the same records.
    function refresh(parsed) {
        experiment = parsed
        hours.show(results.workingHours)
    }

    /// Lets go of the records.
    function forget() {
        experiment = null
        if (table)
            table.rows = []
        if (accelerationChart)
            accelerationChart.clear()
    }

    function setTab(tab) { tabs.setTab(tab) }

    /// A figure of VfFigures; text comes from the program.
    function figure(symbol, unit, value) {
        return { symbol: symbol + unit + ":", value: Texts.numberText(value, root.numberToLocalString) }
    }

    VfFigures {
        id: evaluation

        anchors { left: parent.left; top: parent.top }
        cellWidth: 92
        color: Theme.decisiveGround
        columns: 7
        columnSpacing: Theme.spacing
        label: qsTr("Evaluation")
        figures: [
            figure(qsTr("are"), acceleration, results.are), figure(qsTr("aren"), acceleration, results.aren),
            figure(qsTr("CF"), "", results.fc),
            figure(Lomtrix.symbol("VDV", "expj(X)"), dose, results.vdvXexp),
            figure(Lomtrix.symbol("VDV", "expj(Y)"), dose, results.vdvYexp),
            figure(Lomtrix.symbol("VDV", "expj(Z)"), dose, results.vdvZexp),
            figure(Lomtrix.symbol("VDV", "r"), dose, results.vdvR)
        ]
    }

    VfWorkingHours {
        id: hours

        anchors {
            left: evaluation.right; right: parent.right; top: evaluation.top
            leftMargin: Theme.spacing; topMargin: evaluation.labelHeight
        }
    }

    VfTabs {
        id: tabs

        anchors {
            left: parent.left; right: parent.right; top: evaluation.bottom; bottom: parent.bottom
            topMargin: Theme.spacing
        }
        onFill: {
            if (!view.experiment)
                page.stale = true
            else if (page === tableTab)
                view.table.show(view.experiment.logList || [])
            else if (page === accelerationTab)
                view.accelerationChart.populateSeries(view.experiment)
            else
                view.octaveChart.populate(view.results.amrList || [])
        }

        VfTabPage { id: tableTab; title: qsTr("Table"); sourceComponent: tablePage }
        VfTabPage { id: accelerationTab; title: qsTr("Acceleration x Time"); sourceComponent: LomtrixAcelerationChart {} }
        VfTabPage { id: octaveTab; title: qsTr("Amr x Octave"); sourceComponent: LomtrixOctaveChart {} }
    }

    Component {
        id: tablePage

        Item {
            readonly property alias table: records

            Rectangle { anchors.fill: records; color: Theme.ground }
            VfRecordsTable {
                id: records

                anchors { top: parent.top; bottom: parent.bottom; horizontalCenter: parent.horizontalCenter }
                width: Math.min(parent.width, columnsWidth + barWidth)
                columns: [].concat(
                    Lomtrix.axes("aw", function (axis) { return Lomtrix.symbol("a", "w" + axis) + acceleration }, { width: 90 }),
                    { role: "amr", title: Lomtrix.symbol("a", "mr") + acceleration, width: 90 },
                    Lomtrix.axes("vdv", function (axis) { return Lomtrix.symbol("VDV", "j(" + axis + ")") + dose }, { width: 130 }),
                    Lomtrix.axes("fc", function (axis) { return Lomtrix.symbol("CF", axis) }, { width: 75 }))
            }
        }
    }
}
