// SPDX-License-Identifier: GPL-3.0-or-later
import QtQuick 2.15
import QtQuick.Controls 2.15
import "../../qml/widgets"
import "../../qml/widgets/clock.js" as Clock
import "../../qml/widgets/texts.js" as Texts
import "../../qml/pages"
import "lomtrix.js" as Lomtrix

/// Asks how long a worker was exposed to each of the measured vibrations. Tab and the arrow keys go from time to time,
/// Return goes on.
VfExperimentPage {
    id: page

    /// The exposure components, and in exposureTime of each what was typed.
    property var components: []
    /// What a row tells, and how wide.
    readonly property var columns: [
        { role: "event", title: qsTr("Event"), width: 70, text: true },
        { role: "label", title: qsTr("Task name"), width: 220, text: true },
        { role: "arep", title: qsTr("arep"), width: 80 }
    ].concat(Lomtrix.axes("vdv", function (axis) { return Lomtrix.symbol("VDV", "ji(" + axis + ")") }, { width: 100 }),
             Lomtrix.axes("cf", function (axis) { return Lomtrix.symbol("CF", axis) }, { width: 80 }))
    readonly property real cellsWidth: columns.reduce(function (sum, column) { return sum + column.width }, 0)
    readonly property alias list: list
    readonly property alias warning: warning.text

    signal showTimeExp()

    function take() {
        // Copies: each reading makes the components anew.
        var made = core.expCompList, copies = []
        for (var i = 0; i < made.length; ++i)
            copies.push(columns.reduce(function (copy, column) {
                copy[column.role] = made[i][column.role]
                return copy
            }, { exposureTime: "", hasDuration: made[i].hasDuration }))
        list.model = 0
        components = copies
        list.model = copies.length
        list.currentIndex = 0
        warning.text = ""
        showTimeExp()
    }

    /// The time of a component was typed. Components of one event are one to the instrument: they have one time.
    function enterTime(place, time) {
        components.forEach(function (component, i) {
            if (component.event !== components[place].event || component.exposureTime === time)
                return
            component.exposureTime = time
            if (list.itemAtIndex(i))
                list.itemAtIndex(i).time = time
        })
    }

    /// Has the time at a place typed; false when there is none.
    function edit(place) {
        if (place < 0 || place >= components.length)
            return false
        list.positionViewAtIndex(place, ListView.Contain)
        list.itemAtIndex(place).edit()
        return true
    }

    function goOn() {
        var missing = components.findIndex(function (component) { return !Clock.isTime(component.exposureTime, "hh:mm") })
        warning.text = missing < 0 ? "" : qsTr("Exposure time shall have hh:mm format")
        if (!edit(missing))
            core.refreshPartialResults(JSON.stringify(components.map(function (component) {
                return { event: component.event, exposureTime: component.exposureTime }
            })))
    }

    pageTitle: qsTr("Lomtrix - Exposure time")
    productName: "LOMTRIX"
    onEnabledChanged: if (enabled) edit(list.currentIndex)

    Item {
        anchors {
            top: parent.top; bottom: parent.bottom; horizontalCenter: parent.horizontalCenter
            topMargin: Theme.pageTop; bottomMargin: Theme.margin
        }
        width: page.cellsWidth + 160

        MyRec {
            id: head

            anchors { left: parent.left; right: parent.right; top: parent.top }
            height: 36
            color: Theme.quietGround

            Row {
                anchors { fill: parent; leftMargin: Theme.spacing }
                Repeater {
                    model: page.columns.concat({ title: qsTr("Exposure time") })
                    VfText {
                        width: modelData.width || implicitWidth
                        height: parent.height
                        font.bold: true
                        text: modelData.title
                        textFormat: Text.RichText
                        verticalAlignment: Text.AlignVCenter
                    }
                }
            }
        }

        MyRec {
            anchors { left: parent.left; right: parent.right; top: head.bottom; bottom: next.top }
            anchors { topMargin: -1; bottomMargin: Theme.spacing }

            ListView {
                id: list

                anchors { fill: parent; margins: 1 }
                boundsBehavior: Flickable.StopAtBounds
                clip: true
                highlightMoveDuration: 0
                model: 0
                ScrollBar.vertical: ScrollBar {}
                Accessible.role: Accessible.Table
                Accessible.name: page.pageTitle

                delegate: LomtrixExposureItem {
                    columns: page.columns
                    component: page.components[index]
                    onTyped: page.enterTime(index, time)
                    onWanted: list.currentIndex = index
                    Keys.onTabPressed: event.accepted = page.edit(index + 1)
                    Keys.onBacktabPressed: event.accepted = page.edit(index - 1)
                    Keys.onDownPressed: page.edit(index + 1)
                    Keys.onUpPressed: page.edit(index - 1)
                    Keys.onReturnPressed: page.goOn()
                    Keys.onEnterPressed: page.goOn()
                }
            }
        }

        VfText {
            id: warning

            anchors { left: parent.left; right: next.left; verticalCenter: next.verticalCenter; rightMargin: Theme.spacing }
            color: Theme.warning
            wrapMode: Text.Wrap
            Accessible.role: Accessible.AlertMessage
            Accessible.name: text
        }
        MyButton {
            id: next

            anchors { right: parent.right; bottom: parent.bottom }
            buttonLabel: qsTr("Next")
            onMyButtonclicked: page.goOn()
        }
    }

    Connections {
        target: core
        function onExperimentUpdated(position) { page.update(position) }
    }
}
