// SPDX-License-Identifier: GPL-3.0-or-later
import QtQuick 2.15
import QtQuick.Controls 2.15
import "."

/// How far a download is, from 0 to 100.
ProgressBar {
    id: bar

    to: 100
    implicitHeight: 12
    Accessible.role: Accessible.ProgressBar
    Accessible.name: qsTr("Download") + " " + Math.round(value) + " %"

    background: MyRec { color: Theme.quietGround }
    contentItem: Item {
        Rectangle {
            width: bar.visualPosition * parent.width
            height: parent.height
            color: Theme.strip
            radius: Theme.radius
        }
    }
}
