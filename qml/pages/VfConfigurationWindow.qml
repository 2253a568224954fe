// SPDX-License-Identifier: GPL-3.0-or-later
import QtQuick 2.15
import "../widgets"

/// The base of the configuration windows: hears of the configuration of its product and hands on what the user made of
/// it. A family puts its frames inside and says how they are filled and read.
VfWindow {
    id: window

    property string productName
    /// Where the outcomes are told.
    property VfDialogs dialogs
    property alias warning: warning.text
    default property alias frames: frames.data

    signal cfgOK(string cfg)

    /// Puts the values of a configuration into the controls.
    function fill(configuration) {}

    /// The configuration that the controls show; null, with a warning set, when it cannot be sent.
    function collected() { return null }

    function submitCfg() {
        warning.text = ""
        var configuration = collected()
        if (configuration !== null)
            cfgOK(JSON.stringify(configuration))
    }

    width: 600
    height: 340
    locked: root.busy

    Row {
        id: frames

        enabled: !root.busy
        anchors { left: parent.left; right: parent.right; top: parent.top; margins: Theme.margin }
        spacing: Theme.spacing
    }

    VfText {
        id: warning

        anchors { left: parent.left; right: parent.right; bottom: buttons.top; margins: Theme.margin }
        anchors.bottomMargin: Theme.spacing
        color: Theme.warning
        visible: text !== ""
        wrapMode: Text.WordWrap
        Accessible.role: Accessible.AlertMessage
        Accessible.name: text
    }

    VfText {
        anchors { left: warning.left; bottom: warning.bottom }
        color: Theme.quietText
        text: root.busyText || "* " + qsTr("Stored in the instrument by \"Apply\"")
        visible: !warning.visible
        Accessible.role: root.busyText ? Accessible.AlertMessage : Accessible.StaticText
        Accessible.name: text
    }

    Item {
        id: buttons

        anchors { left: parent.left; right: parent.right; bottom: parent.bottom; margins: Theme.margin }
        enabled: !root.busy
        height: Theme.controlHeight

        MyButton {
            buttonLabel: qsTr("Erase memory")
            dangerous: true
            onMyButtonclicked: window.dialogs.eraseDialog.open(window)
        }
        Row {
            anchors.right: parent.right
            spacing: Theme.gap * 1.5

            MyButton { buttonLabel: qsTr("Close"); onMyButtonclicked: window.close() }
            MyButton { buttonLabel: qsTr("Apply"); onMyButtonclicked: window.submitCfg() }
        }
    }

    Connections {
        target: core
        function onConfigurationUpdated() {
            var configuration = JSON.parse(core.configuration)
            if (configuration.productName !== window.productName)
                return
            window.warning = ""
            window.fill(configuration)
        }
        function onEraseStarted() {
            if (core.devName === window.productName)
                window.dialogs.eraseInProgressDialog.open()
        }
    }
}
