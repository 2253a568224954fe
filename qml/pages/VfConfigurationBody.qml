// SPDX-License-Identifier: GPL-3.0-or-later
import QtQuick 2.15
import QtQuick.Window 2.15
import "../widgets"

/// What can be set on an instrument and the buttons for it: the inside of a configuration window, or of one of its tabs.
/// It hears of the configuration of its product and hands on what the user made of it. A family puts its frames inside
/// and says how they are filled and read.
Item {
    id: body

    property string productName
    /// Where the outcomes are told.
    property VfDialogs dialogs
    /// Whether the memory can be erased here.
    property bool erases: true
    /// What is always told at its foot.
    property string note: "* " + qsTr("Stored in the instrument by \"Apply\"")
    property alias warning: warning.text
    default property alias frames: frames.data

    signal cfgOK(string cfg)

    /// Puts the values of a configuration into the controls.
    function fill(configuration) {}

    /// What the controls show; null, with a warning set, when it cannot be sent.
    function collected() { return null }

    function submitCfg() {
        warning.text = ""
        var configuration = collected()
        if (configuration !== null)
            cfgOK(JSON.stringify(configuration))
    }

    Row {
        id: frames

        enabled: !root.busy
        anchors {
            left: parent.left; right: parent.right; top: parent.top; bottom: warning.top
            margins: Theme.margin; bottomMargin: Theme.gap
        }
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
        text: root.busyText || body.note
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
            visible: body.erases
            onMyButtonclicked: body.dialogs.eraseDialog.open(body.Window.window)
        }
        Row {
            anchors.right: parent.right
            spacing: Theme.gap * 1.5

            MyButton { buttonLabel: qsTr("Close"); onMyButtonclicked: body.Window.window.close() }
            MyButton { buttonLabel: qsTr("Apply"); onMyButtonclicked: body.submitCfg() }
        }
    }

    Connections {
        target: core
        function onConfigurationUpdated() {
            var configuration = JSON.parse(core.configuration)
            if (configuration.productName !== body.productName)
                return
            body.warning = ""
            body.fill(configuration)
        }
        function onEraseStarted() {
            if (body.erases && core.devName === body.productName)
                body.dialogs.eraseInProgressDialog.open()
        }
    }
}
