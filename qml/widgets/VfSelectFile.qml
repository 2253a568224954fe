// SPDX-License-Identifier: GPL-3.0-or-later
import QtQuick 2.15
import QtQuick.Dialogs 1.3
import "."
import "filepath.js" as FilePath

/// The path of a file to be written, and the button that asks for it.
Item {
    id: chooser

    property string fileName
    property var nameFilters: ["PostScript files (*.pdf)", "All files (*)"]

    signal picked(string fileName)

    /// Takes over what a dialog gives.
    function pick(url) {
        fileName = FilePath.path(url, Qt.platform.os === "windows")
        picked(fileName)
    }

    implicitHeight: Theme.controlHeight
    implicitWidth: 400

    Rectangle {
        anchors { left: parent.left; right: button.left; top: parent.top; bottom: parent.bottom; rightMargin: 8 }
        border { width: 1; color: Theme.fieldLine }
        color: Theme.quietGround
        radius: Theme.radius
        VfElidedText {
            anchors { fill: parent; leftMargin: 6; rightMargin: 6 }
            elide: Text.ElideMiddle
            font.pixelSize: Theme.smallSize
            whole: chooser.fileName
            verticalAlignment: Text.AlignVCenter
            Accessible.role: Accessible.StaticText
            Accessible.name: chooser.fileName
        }
    }

    MyButton {
        id: button

        anchors { right: parent.right; verticalCenter: parent.verticalCenter }
        buttonLabel: qsTr("File")
        onMyButtonclicked: dialog.open()
    }

    LazyDialog {
        id: dialog

        sourceComponent: FileDialog {
            title: qsTr("Save file as")
            nameFilters: chooser.nameFilters
            selectExisting: false
            onAccepted: chooser.pick(fileUrl)
        }
    }
}
