// SPDX-License-Identifier: GPL-3.0-or-later
import QtQuick 2.15
import "../../qml/widgets"

/// The schedules that are being edited. The key Delete takes the current one away.
Item {
    id: table

    readonly property var columns: [
        { title: qsTr("Label"), role: "label", width: 160 },
        { title: qsTr("Day"), role: "monthDay", width: 50 },
        { title: qsTr("Start"), role: "startTime", width: 70 },
        { title: qsTr("Pause"), role: "pauseTime", width: 70 },
        { title: qsTr("Resume"), role: "resumeTime", width: 70 },
        { title: qsTr("Stop"), role: "stopTime", width: 70 }
    ]
    readonly property alias list: list

    /// Shows what there is now: where it was looked at before, or what has been added to it.
    function show() {
        var view = list.view, top = view.contentY, last = view.count
        list.model = core.virtualSchedulelist
        view.forceLayout()
        if (last > 0 && view.count === last + 1)
            view.positionViewAtEnd()
        else
            scroll(top - view.contentY)
    }

    function scroll(by) {
        var view = list.view
        view.contentY = Math.max(0, Math.min(view.contentHeight - view.height, view.contentY + by))
    }

    function remove(index) {
        core.removeSchedule(index)
        list.currentIndex = Math.min(index, list.count - 1)
    }

    VfList {
        id: list

        anchors { fill: parent; rightMargin: arrows.width + Theme.gap }
        name: qsTr("Schedules")
        emptyText: qsTr("No schedules.")
        delegate: Ardel2ScheduleItem {
            columns: table.columns
            onRemoved: table.remove(index)
        }
        head: Row {
            anchors.verticalCenter: parent.verticalCenter
            leftPadding: Theme.spacing
            spacing: Theme.spacing

            Repeater {
                model: table.columns
                VfText { width: modelData.width; font.bold: true; text: modelData.title }
            }
        }
        Keys.onDeletePressed: if (list.currentIndex >= 0) table.remove(list.currentIndex)
    }

    Item {
        id: arrows

        anchors { right: parent.right; top: parent.top; bottom: parent.bottom }
        width: Theme.controlHeight

        MyButton {
            anchors { top: parent.top; topMargin: 36 }
            implicitWidth: parent.width
            buttonLabel: "\u25b2"
            focusPolicy: Qt.NoFocus
            visible: list.count > 0 && !list.view.atYBeginning
            onMyButtonclicked: table.scroll(-34)
            Accessible.name: qsTr("Scroll up")
        }
        MyButton {
            anchors.bottom: parent.bottom
            implicitWidth: parent.width
            buttonLabel: "\u25bc"
            focusPolicy: Qt.NoFocus
            visible: list.count > 0 && !list.view.atYEnd
            onMyButtonclicked: table.scroll(34)
            Accessible.name: qsTr("Scroll down")
        }
    }

    Connections {
        target: core
        function onScheduleListUpdate() {
            if (core.devName === "ARDEL 2")
                table.show()
        }
    }
}
