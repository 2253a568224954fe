// SPDX-License-Identifier: GPL-3.0-or-later
import QtQuick 2.15
import QtQuick.Dialogs 1.3
import "."

/// The messages that a page can show.
Item {
    id: dialogs

    property alias devDisconnectedDialog: devDisconnectedDialog
    property alias eraseFailDialog: eraseFailDialog
    property alias unsupportedDeviceDialog: unsupportedDeviceDialog
    property alias downloadFailDialog: downloadFailDialog
    property alias configErrorDialog: configErrorDialog
    property alias configSuccesfulDialog: configSuccesfulDialog
    property alias eraseInProgressDialog: eraseInProgressDialog
    property alias eraseSuccessfulDialog: eraseSuccessfulDialog
    property alias deviceBusyDialog: deviceBusyDialog
    property alias invalidFileDialog: invalidFileDialog
    property alias eraseDialog: eraseDialog
    property alias rcvCfgErrorDialog: rcvCfgErrorDialog
    property alias rcvSchedulListDialog: rcvSchedulListDialog
    property alias printerErrorDialog: printerErrorDialog

    /// Whether code tells of success; if not, opens the usual dialog, or errorDialog (if there is one) for an error.
    function answered(code, errorDialog) {
        if (code === root.deviceDisconnected)
            devDisconnectedDialog.open()
        else if (code === root.deviceBusy)
            deviceBusyDialog.open()
        else if (code === root.deviceError && errorDialog)
            errorDialog.open()
        return code === root.deviceSuccessful
    }

    function eraseMemory() {
        root.wait(qsTr("Erasing Memory") + "...", core.eraseMemory, function (code) {
            eraseInProgressDialog.close()
            if (answered(code, eraseFailDialog))
                eraseSuccessfulDialog.open()
        })
    }

    VfMessage { id: devDisconnectedDialog; owner: dialogs; text: qsTr("Instrument disconnected") + "." }
    VfMessage { id: eraseFailDialog; owner: dialogs; text: qsTr("Erase Failed") + "." }
    VfMessage {
        id: unsupportedDeviceDialog
        owner: dialogs
        text: qsTr("The device you are trying to connect is not supported by this software version") + "."
    }
    VfMessage { id: downloadFailDialog; owner: dialogs; text: qsTr("Download Failed") + "." }
    VfMessage { id: configErrorDialog; owner: dialogs; text: qsTr("The device couldn't apply the changes") + "." }
    VfMessage {
        id: configSuccesfulDialog
        owner: dialogs
        title: qsTr("Information")
        text: qsTr("The changes have been applied") + "."
        icon: StandardIcon.Information
    }
    VfMessage {
        id: eraseInProgressDialog
        owner: dialogs
        title: qsTr("Information")
        text: qsTr("Please, wait") + ". " + qsTr("Erasing Memory") + "..."
        icon: StandardIcon.Information
    }
    VfMessage {
        id: eraseSuccessfulDialog
        owner: dialogs
        title: qsTr("Information")
        text: qsTr("Memory have been erased") + "."
        icon: StandardIcon.Information
    }
    VfMessage {
        id: deviceBusyDialog
        owner: dialogs
        title: qsTr("Information")
        text: qsTr("The device can not answer now. An experiment may be in progress") + "."
        icon: StandardIcon.Information
    }
    VfMessage {
        id: invalidFileDialog
        owner: dialogs
        text: qsTr("The file is invalid") + ". " + qsTr("Maybe it was edited by another software") + "."
    }
    VfQuestion {
        id: eraseDialog
        owner: dialogs
        title: qsTr("Erase memory?")
        text: qsTr("ERASE MEMORY means that all experiment will be deleted") + ". " + qsTr("Continue?")
        onYes: dialogs.eraseMemory()
    }
    VfMessage {
        id: rcvCfgErrorDialog
        owner: dialogs
        text: qsTr("Suite Morvane couldn't receive the configuration from device") + "."
    }
    VfMessage {
        id: rcvSchedulListDialog
        owner: dialogs
        text: qsTr("Suite Morvane couldn't receive the schedule list from device") + "."
    }
    VfMessage { id: printerErrorDialog; owner: dialogs; text: qsTr("The report couldn't be generated") + "." }
}
