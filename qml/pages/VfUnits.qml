// SPDX-License-Identifier: GPL-3.0-or-later
import QtQuick 2.15
import QtQuick.Controls 2.15
import "../widgets"

/// Views of which one is shown, and beside it a list to pick from: the units of an instrument, the quantities of a sensor.
/// A view is made when it is first looked at and kept from then on, for an item view whose delegates are taken away while
/// it moves is not safe: a smaller number only leaves views unused, a greater one makes further ones.
Item {
    id: units

    property int count: 0
    /// What is made for each unit; it has a function forget() and, if it has tabs, setTab(tab) and currentTab.
    property Component view
    property string listName
    property var nameOf: function (unit) { return String(unit + 1) }
    readonly property alias currentUnit: list.currentIndex
    property var currentView: null

    /// The view of a unit must show that unit of what is shown now; once for each unit and present().
    signal fill(var view, int unit)

    property var made: []
    property var stale: []

    /// Shows number units, beginning with the first.
    function present(number) {
        stale = made.map(function () { return true })
        count = number
        list.currentIndex = 0
        look()
    }

    /// Lets go of what is shown.
    function forget() {
        made.forEach(function (view) { view.forget() })
        stale = made.map(function () { return true })
    }

    function setUnit(unit) {
        if (unit >= 0 && unit < count)
            list.currentIndex = unit
    }

    function look() {
        var unit = list.currentIndex
        if (count === 0 && currentView)
            currentView.visible = false
        if (unit < 0 || unit >= count)
            return
        while (made.length <= unit) {
            made.push(view.createObject(stack, { visible: false }))
            stale.push(true)
        }
        var last = currentView, next = made[unit]
        if (last && last !== next) {
            last.visible = false
            if (next.setTab)
                next.setTab(last.currentTab)
        }
        next.visible = true
        currentView = next
        if (stale[unit]) {
            stale[unit] = false
            fill(next, unit)
        }
    }

    Item {
        id: stack

        anchors { left: parent.left; right: side.left; top: parent.top; bottom: parent.bottom; rightMargin: Theme.spacing }
        clip: true
    }

    VfSpoken { parent: list; active: list.activeFocus; text: units.nameOf(list.currentIndex) }

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
            boundsBehavior: Flickable.StopAtBounds
            clip: true
            model: units.count
            onCurrentIndexChanged: units.look()
            ScrollBar.vertical: ScrollBar {}
            Accessible.role: Accessible.List
            Accessible.name: units.listName

            delegate: Rectangle {
                width: ListView.view.width
                height: 36
                color: ListView.isCurrentItem ? "orange" : "lightgrey"
                border {
                    width: ListView.isCurrentItem && list.activeFocus ? 2 : 1
                    color: ListView.isCurrentItem && list.activeFocus ? Theme.accent : Theme.ground
                }
                Accessible.role: Accessible.ListItem
                Accessible.name: label.whole
                Accessible.selectable: true
                Accessible.selected: ListView.isCurrentItem
                Accessible.onPressAction: units.setUnit(index)
                VfElidedText {
                    id: label

                    anchors { fill: parent; leftMargin: Theme.gap; rightMargin: Theme.gap }
                    horizontalAlignment: Text.AlignHCenter
                    verticalAlignment: Text.AlignVCenter
                    whole: units.nameOf(index)
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
