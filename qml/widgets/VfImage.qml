// SPDX-License-Identifier: GPL-3.0-or-later
import QtQuick 2.15
import QtQuick.Dialogs 1.3
import "."
import "filepath.js" as FilePath

/// A picture for a report's logo, with the box that says whether it is printed.
Item {
    id: chooser

    property string label
    property string fileName
    property alias checked: box.checked

    signal toggled(bool on)
    signal picked(string fileName)

    function pick(url) {
        picture.source = url
        fileName = FilePath.path(url, Qt.platform.os === "windows")
        picked(fileName)
    }

    implicitHeight: 92
    implicitWidth: 340

    VfCheckBox {
        id: box

        text: chooser.label
        onToggled: chooser.toggled(checked)
    }

    Rectangle {
        id: frame

        anchors {
            left: parent.left; right: button.left; top: box.bottom; bottom: parent.bottom
            topMargin: 4; rightMargin: Theme.gap
        }
        border { width: 1; color: Theme.fieldLine }
        color: box.checked ? Theme.ground : Theme.quietGround
        radius: Theme.radius
        opacity: box.checked ? 1 : 0.5
        Image {
            id: picture

            anchors { fill: parent; margins: 3 }
            fillMode: Image.PreserveAspectFit
            mipmap: true
            Accessible.role: Accessible.Graphic
            Accessible.name: chooser.fileName || qsTr("No image")
        }
        VfText {
            anchors.centerIn: parent
            color: Theme.quietText
            font.pixelSize: Theme.smallSize
            text: qsTr("No image")
            visible: picture.status !== Image.Ready
        }
    }

    MyButton {
        id: button

        anchors { right: parent.right; verticalCenter: frame.verticalCenter }
        buttonLabel: qsTr("Image")
        enabled: box.checked
        onMyButtonclicked: dialog.open()
    }

    LazyDialog {
        id: dialog

        sourceComponent: FileDialog {
            nameFilters: [qsTr("Image files (*.png *.jpg)")]
            title: qsTr("Please choose a file")
            onAccepted: chooser.pick(fileUrl)
        }
    }
}
