// SPDX-License-Identifier: GPL-3.0-or-later
import QtQuick 2.15
import "../widgets"

/// What the program is, whose, and of which version.
VfWindow {
    id: window

    readonly property string swName: "Suite Morvane"
    readonly property url site: "https://morvane.example"

    width: 600
    height: 300
    title: qsTr("About") + " " + swName

    Image {
        id: icon

        anchors { left: parent.left; top: parent.top; margins: Theme.margin }
        source: "qrc:/../icone.png"
        sourceSize { width: 96; height: 96 }
        Accessible.role: Accessible.Graphic
        Accessible.name: window.swName
    }

    Column {
        anchors { left: icon.right; right: parent.right; top: parent.top; margins: Theme.margin }
        spacing: Theme.gap

        Text {
            text: "SUÍTE MORVANE"
            color: Theme.text
            font { family: fontMorvane.name; pixelSize: 24 }
        }
        Repeater {
            model: [
                qsTr("Version") + " " + core.version,
                qsTr("Built on") + " " + core.builtDate,
                qsTr("From revison") + " " + core.revision,
                qsTr("Free software under the GNU General Public License, version 3 or later.") + " "
                    + qsTr("Copyright © Morvane Instruments") + ", " + core.builtYear
            ]
            VfText { width: parent.width; text: modelData; wrapMode: Text.WordWrap }
        }
        LinkText {
            text: window.site
            onActivated: Qt.openUrlExternally(window.site)
        }
    }

    MyButton {
        anchors { right: parent.right; bottom: parent.bottom; margins: Theme.margin }
        buttonLabel: qsTr("Close")
        focus: true
        onMyButtonclicked: window.close()
    }
}
