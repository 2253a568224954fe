// SPDX-License-Identifier: GPL-3.0-or-later
import QtQuick 2.15
import QtQuick.Controls 2.15
import "."

/// A list with a header. Up and Down move in it, Return and Space click.
Item {
    id: list

    property alias headerlabel: header.text
    /// What stands in the head instead of a label.
    property alias head: head.data
    /// What it is called, for those who cannot see it.
    property string name: headerlabel
    property alias model: view.model
    property alias delegate: view.delegate
    property alias currentIndex: view.currentIndex
    readonly property alias count: view.count
    readonly property alias view: view
    /// Whether its items have check boxes, and the positions of the ticked ones.
    property alias checkable: view.checkable
    property alias picked: view.picked
    /// What stands in a list that has nothing to show.
    property string emptyText

    signal listClicked(int indexItem)

    implicitWidth: 400
    implicitHeight: 300

    MyRec {
        id: head

        anchors { left: parent.left; right: parent.right; top: parent.top }
        height: 36
        color: Theme.quietGround

        VfText {
            id: header

            anchors { left: parent.left; verticalCenter: parent.verticalCenter; leftMargin: Theme.spacing }
            font.bold: true
        }
    }

    MyRec {
        anchors { left: parent.left; right: parent.right; top: head.bottom; bottom: parent.bottom; topMargin: -1 }

        ListView {
            id: view

            property bool checkable: false
            property var picked: []
            property Item entered: null     ///< where the pointer came to last

            signal clicked(int index)

            anchors { fill: parent; margins: 1 }
            activeFocusOnTab: true
            boundsBehavior: Flickable.StopAtBounds
            clip: true
            currentIndex: -1
            highlightMoveDuration: 0
            onClicked: { forceActiveFocus(); list.listClicked(index) }
            onModelChanged: currentIndex = -1
            ScrollBar.vertical: ScrollBar {}
            Keys.onReturnPressed: if (currentItem) currentItem.click()
            Keys.onEnterPressed: if (currentItem) currentItem.click()
            Keys.onSpacePressed: if (currentItem) currentItem.click()
            Accessible.role: Accessible.List
            Accessible.name: list.name
        }

        VfText {
            anchors { fill: parent; margins: Theme.margin }
            color: Theme.quietText
            horizontalAlignment: Text.AlignHCenter
            verticalAlignment: Text.AlignVCenter
            text: list.emptyText
            visible: view.count === 0
            wrapMode: Text.WordWrap
        }
    }

    FocusFrame { shown: view.activeFocus }
    VfSpoken { parent: view; active: view.activeFocus; text: view.currentItem ? view.currentItem.description : "" }
}
