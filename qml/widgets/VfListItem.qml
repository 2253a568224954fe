// SPDX-License-Identifier: GPL-3.0-or-later
import QtQuick 2.15
import "."

/// The ground of a list's item: shows hovering and selection, and is clicked by mouse or, in its list, by keyboard.
Rectangle {
    id: item

    readonly property bool selected: ListView.isCurrentItem
    /// An area that was clicked misses that the pointer leaves it: the list knows where that came to.
    readonly property bool hovered: area.containsMouse && (!ListView.view || ListView.view.entered === item)
    readonly property color textColor: selected ? Theme.textOnDark : hovered ? "black" : Theme.text
    /// What the item says to those who cannot see it.
    property string description
    /// What the content may take.
    readonly property real room: width - 2 * Theme.spacing
    default property alias content: row.data

    signal itemClicked()

    function click() {
        var list = ListView.view
        if (list)
            list.currentIndex = index
        itemClicked()
        if (list)
            list.clicked(index)
    }

    width: ListView.view ? ListView.view.width : implicitWidth
    implicitWidth: row.implicitWidth + 2 * Theme.spacing
    implicitHeight: 56
    color: selected ? Theme.accent : hovered ? Theme.hover : Theme.ground
    Accessible.role: Accessible.ListItem
    Accessible.name: description
    Accessible.selected: selected
    Accessible.onPressAction: click()

    MouseArea {
        id: area

        anchors.fill: parent
        hoverEnabled: true
        onClicked: item.click()
        onContainsMouseChanged: if (containsMouse && item.ListView.view) item.ListView.view.entered = item
    }

    Row {
        id: row

        anchors { left: parent.left; verticalCenter: parent.verticalCenter; leftMargin: Theme.spacing }
        spacing: Theme.spacing
    }

    Rectangle {
        anchors { left: parent.left; right: parent.right; bottom: parent.bottom }
        height: 1
        color: Theme.line
    }
}
