// SPDX-License-Identifier: GPL-3.0-or-later
import QtQuick 2.15
import QtQuick.Controls 2.15
import "."
import "texts.js" as Texts

/// A tab; its text is markup.
TabButton {
    id: tab

    function choose() { TabBar.tabBar.setCurrentIndex(TabBar.index) }

    implicitHeight: 34
    Keys.onReturnPressed: choose()
    Keys.onEnterPressed: choose()
    Accessible.role: Accessible.PageTab
    Accessible.selected: checked
    Accessible.onPressAction: choose()
    Accessible.name: Texts.plain(text)

    contentItem: VfText {
        color: tab.checked ? Theme.textOnDark : Theme.text
        horizontalAlignment: Text.AlignHCenter
        text: tab.text
        textFormat: Text.RichText
        verticalAlignment: Text.AlignVCenter
    }
    background: Rectangle {
        color: tab.checked ? Theme.button : tab.hovered ? Theme.line : "#e4e4e4"
        Rectangle {
            anchors { fill: parent; margins: 2 }
            border { width: 2; color: Theme.accent }
            color: "transparent"
            visible: tab.visualFocus
        }
    }
}
