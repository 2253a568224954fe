// SPDX-License-Identifier: GPL-3.0-or-later
import QtQuick 2.15
import QtQuick.Dialogs 1.3

/// A message to the user; its dialog is made when it is first opened. A warning unless told otherwise.
QtObject {
    id: message

    property Item owner
    property string title: qsTr("Warning")
    property string text
    property int icon: StandardIcon.Warning
    property MessageDialog dialog: null
    readonly property bool visible: dialog !== null && dialog.visible
    property Component made: MessageDialog {
        title: message.title
        text: message.text
        icon: message.icon
        standardButtons: StandardButton.Ok
        modality: Qt.ApplicationModal
    }

    function open() {
        if (dialog === null)
            dialog = made.createObject(owner)
        dialog.open()
    }

    function close() {
        if (dialog !== null)
            dialog.close()
    }
}
