// SPDX-License-Identifier: GPL-3.0-or-later
import QtQuick 2.15
import QtQuick.Controls 2.15
import "../../qml/widgets"

/// The units of an experiment: a view of the one that is picked from the list beside it. The records stay as they were
/// parsed; a unit's view is made and filled when it is first looked at, and takes its values from its place in a record.
Item {
    id: units

    /// The instrument has room for the main unit and three expansions.
    readonly property int mostUnits: 4
    property var experiment: null
    property int count: 0
    readonly property alias currentUnit: list.currentIndex
    property var currentView: null

    function show(parsed) {
        experiment = parsed
        count = Math.max(1, Math.min(mostUnits, (parsed.results || {}).numberOfExpansions + 1 || 1))
        for (var i = 0; i < views.count; ++i)
            views.itemAt(i).stale = true
        setUnit(0)
        fill(0)
    }

    function forget() {
        experiment = null
        for (var i = 0; i < views.count; ++i)
            if (views.itemAt(i).item)
                views.itemAt(i).item.forget()
    }

    function setUnit(unit) {
        list.currentIndex = unit
        swipe.setCurrentIndex(unit)
    }

    function fill(unit) {
        var loader = views.itemAt(unit)
        if (!loader || !experiment)
            return
        loader.active = true
        currentView = loader.item
        if (!loader.stale)
            return
        loader.stale = false
        currentView.show(experiment, figures(unit), function (record) {
            return (record.enviromentalFactorsList || [])[unit] || {}
        })
    }

    function figures(unit) {
        var results = experiment.results || {}
        return Object.assign({ unity: results.unity, sampleTime: results.sampleTime },
                             (results.wbgtList || [])[unit], (results.maxMinTemperatures || [])[unit])
    }

    SwipeView {
        id: swipe

        anchors { left: parent.left; right: side.left; top: parent.top; bottom: parent.bottom; rightMargin: 16 }
        clip: true
        interactive: false
        onCurrentIndexChanged: units.fill(currentIndex)

        Repeater {
            id: views

            model: units.count
            Loader {
                property bool stale: true

                active: false
                sourceComponent: Thalvex4ExperimentView {}
            }
        }
    }

    Rectangle {
        id: side

        anchors { right: parent.right; top: parent.top; bottom: parent.bottom }
        width: 150
        border { width: 1; color: Theme.line }
        color: Theme.ground

        ListView {
            id: list

            activeFocusOnTab: true
            anchors { fill: parent; margins: 1 }
            clip: true
            model: units.count
            onCurrentIndexChanged: swipe.setCurrentIndex(currentIndex)
            Accessible.role: Accessible.List
            Accessible.name: qsTr("Units")

            delegate: Rectangle {
                width: ListView.view.width
                height: 36
                color: ListView.isCurrentItem ? "orange" : "lightgrey"
                border {
                    width: ListView.isCurrentItem && list.activeFocus ? 2 : 1
                    color: ListView.isCurrentItem && list.activeFocus ? Theme.accent : Theme.ground
                }
                Accessible.role: Accessible.ListItem
                Accessible.name: label.text
                VfText {
                    id: label

                    anchors.centerIn: parent
                    text: index === 0 ? qsTr("Main") : qsTr("Expansion") + " " + index
                }
                MouseArea {
                    anchors.fill: parent
                    onClicked: {
                        list.forceActiveFocus()
                        units.setUnit(index)
                    }
                }
            }
        }
    }
}
