// SPDX-License-Identifier: GPL-3.0-or-later
import QtQuick 2.15
import QtQuick.Dialogs 1.3
import "../widgets"
import "../pages"

/// Finds instruments, opens files, and leads to the page of the instrument that is picked.
VfPage {
    id: page

    readonly property alias dialogs: dialogs
    readonly property alias list: list
    readonly property alias warningText: warningText.text
    readonly property alias about: about.item
    readonly property alias openFileDialog: openFile.item
    readonly property string processing: qsTr("Processing file") + "..."

    /// Says so first: the reading of a file leaves no time to paint.
    function readFile(urls) {
        if (root.busy)
            return
        warningText.text = processing
        root.wait("", function () { core.parseFile(urls) }, function () { warningText.text = "" })
    }

    /// Begins a session with an instrument of the list; the first step that fails ends it.
    function openDevice(index) {
        var steps = [function () { return core.createDevice(index) }, core.setTimeNow, core.findExperiments]
        root.wait(qsTr("Connecting") + "...", function () {
            var code = root.deviceSuccessful
            steps.every(function (step) { return (code = step()) === root.deviceSuccessful })
            return code
        }, function (code) {
            if (dialogs.answered(code))
                root.enterFamily(core.devName)
        })
    }

    function openAbout() {
        about.active = true
        about.item.present()
    }

    pageTitle: qsTr("HOME")
    enabled: visible // all but the way out is locked while something is waited for

    VfDialogs { id: dialogs }

    PageBody {
        anchors.fill: parent

        VfList {
            id: list

            anchors.fill: parent
            enabled: !root.busy
            headerlabel: qsTr("Devices available")
            emptyText: qsTr("Connect an instrument and press \"Find device\", or open an experiment file.")
            model: core.deviceList
            delegate: VfDeviceItem {
                productName: modelData.productName
                serialNumber: modelData.sn
                fwVersion: modelData.fw
            }
            onListClicked: page.openDevice(indexItem)
        }

        actions: [
            MyButton {
                buttonLabel: qsTr("Find device")
                enabled: !root.busy
                onMyButtonclicked: root.wait("", core.findDevices)
            },
            MyButton { buttonLabel: qsTr("Open file"); enabled: !root.busy; onMyButtonclicked: openFile.open() },
            MyButton { buttonLabel: qsTr("About"); enabled: !root.busy; onMyButtonclicked: page.openAbout() },
            MyButton { buttonLabel: qsTr("Exit"); onMyButtonclicked: Qt.quit() }
        ]
    }

    VfText {
        id: warningText

        anchors { left: parent.left; bottom: parent.bottom; margins: Theme.margin }
        color: Theme.quietText
        Accessible.role: Accessible.AlertMessage
        Accessible.name: text
    }

    LazyDialog {
        id: openFile

        sourceComponent: FileDialog {
            id: openFileDialog

            title: qsTr("Please choose a file")
            selectExisting: true
            selectMultiple: false
            modality: Qt.NonModal
            nameFilters: [qsTr("Suite Morvane Files ") + "(*.tvx *.tv4 *.adl *.lmt *.nbr *.nbp *.zlk)",
                          qsTr("All files ") + "(*)"]
            onAccepted: page.readFile(openFileDialog.fileUrls)
        }
    }

    Loader {
        id: about

        active: false
        sourceComponent: AboutWindow {}
    }

    Connections {
        target: core
        function onFindingDevices(progress) {
            warningText.text = qsTr("Looking for instruments") + " [" + progress.toFixed(2) + " %]"
        }
        function onFindDeviceFinished() { warningText.text = "" }
        function onFileReadStarted() { warningText.text = page.processing }
        function onFileReadFinished() { warningText.text = "" }
        function onInvalidFile() { dialogs.invalidFileDialog.open() }
    }
}
