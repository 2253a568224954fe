// SPDX-License-Identifier: GPL-3.0-or-later
import QtQuick 2.15
import QtQuick.Window 2.15

Window {
    id: window

    /// What the program knows of files before they are written.
    property QtObject outputs: null

    visible: true
    width: 1300
    height: 670
    minimumWidth: 1300
    minimumHeight: 670
    title: qsTr("Morvane Suite")
    color: "#878787"
    visibility: "Maximized"

    FontLoader { id: fontMorvane; source: "qrc:/../HANDGOTB.TTF" }
    FontLoader { id: fontSans; source: "qrc:/../FreeSans, Regular.ttf" }
    FontLoader { id: fontMono; source: "qrc:/../FreeMono, Regular.ttf" }
    FontLoader { id: fontSerif; source: "qrc:/../FreeSerif, Regular.ttf" }

    Root { id: root; outputs: window.outputs }
}
