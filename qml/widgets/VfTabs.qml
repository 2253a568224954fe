// SPDX-License-Identifier: GPL-3.0-or-later
import QtQuick 2.15
import QtQuick.Controls 2.15
import "."
import "texts.js" as Texts

/// Pages under tabs. A page is made when it is first looked at, and takes over what is new when it is looked at again.
Item {
    id: tabs

    default property alias pages: swipe.contentData     ///< each a VfTabPage
    readonly property alias currentTab: swipe.currentIndex
    /// The pages whose tabs are there; those of one family keep their places, for a bar whose buttons change is not safe.
    readonly property int presentCount: {
        var count = 0
        for (var i = 0; i < swipe.count; ++i)
            count += swipe.itemAt(i).present ? 1 : 0
        return count
    }

    /// A page must show what is shown now; once for each page and renew().
    signal fill(var page)

    function setTab(tab) { bar.setCurrentIndex(tab) }

    /// There is something new to show.
    function renew() {
        if (swipe.currentItem && !swipe.currentItem.present)
            setTab(0)
        for (var i = 0; i < swipe.count; ++i)
            swipe.itemAt(i).stale = true
        look()
    }

    function look() {
        var page = swipe.currentItem
        if (!page || !page.stale)
            return
        page.stale = false
        page.active = true
        fill(page)
    }

    TabBar {
        id: bar

        anchors { left: parent.left; right: parent.right }
        background: Rectangle { color: Theme.quietGround; border { width: 1; color: Theme.line } }
        spacing: 1

        Repeater {
            id: buttons

            VfTabButton {
                text: swipe.itemAt(index).title
                visible: swipe.itemAt(index).present
                width: visible ? (bar.width - (tabs.presentCount - 1) * bar.spacing) / tabs.presentCount : 0
            }
        }
    }

    SwipeView {
        id: swipe

        activeFocusOnTab: false     // what it shows has the keyboard
        anchors { left: parent.left; right: parent.right; top: bar.bottom; bottom: parent.bottom; topMargin: Theme.gap }
        clip: true
        currentIndex: bar.currentIndex
        interactive: tabs.presentCount === count // else it could be drawn to a page without a tab
        onCurrentIndexChanged: {
            bar.setCurrentIndex(currentIndex)
            tabs.look()
        }
        Accessible.role: Accessible.Pane
        Accessible.name: currentItem ? Texts.plain(currentItem.title) : ""
        // The number of tabs is settled before the first is made: a bar whose buttons change while it lives is not safe.
        Component.onCompleted: buttons.model = count
    }
}
