// SPDX-License-Identifier: GPL-3.0-or-later
import QtQuick 2.15
import "../../qml/widgets"

/// What can be set on the dosimeter, and its schedules.
VfWindow {
    id: window

    property VfDialogs dialogs
    readonly property alias settings: settings.item
    readonly property alias schedules: schedules.item

    signal cfgOK(string cfg)
    signal scheduleListOK(string sch)

    title: qsTr("Ardel 2 - ") + qsTr("Configuration")
    width: 800
    height: 570
    locked: root.busy

    VfTabs {
        anchors.fill: parent

        VfTabPage {
            id: settings

            active: true
            title: qsTr("Dosimeter")
            sourceComponent: Ardel2Settings { dialogs: window.dialogs; onCfgOK: window.cfgOK(cfg) }
        }
        VfTabPage {
            id: schedules

            active: true
            title: qsTr("Schedule")
            sourceComponent: Ardel2Schedules { dialogs: window.dialogs; onCfgOK: window.scheduleListOK(cfg) }
        }
    }
}
