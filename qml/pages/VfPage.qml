// SPDX-License-Identifier: GPL-3.0-or-later
import QtQuick 2.15
import "../widgets"

/// The base of every page: its title, and the state to which the back button returns.
Rectangle {
    property string pageTitle
    /// The name of the state that the page was entered from.
    property string caller

    color: "transparent"
    enabled: visible && !root.busy // what is hidden has no focus
    Accessible.role: Accessible.Pane
    Accessible.name: pageTitle

    Text {
        anchors { horizontalCenter: parent.horizontalCenter; top: parent.top; topMargin: Theme.margin }
        color: Theme.text
        font { family: fontMorvane.name; pixelSize: 20; bold: true; italic: true; capitalization: Font.AllUppercase }
        text: parent.pageTitle
        Accessible.role: Accessible.Heading
        Accessible.name: text
    }
}
