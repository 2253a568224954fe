// SPDX-License-Identifier: GPL-3.0-or-later
import QtQuick 2.15
import QtQuick.Controls 2.15
import QtQuick.Dialogs 1.3
import "../widgets"
import "experiments.js" as Experiments

/// The base of the pages of a connected instrument: its configuration, the experiments in its memory, their download.
/// Every download is saved to a file before it is shown.
VfPage {
    id: page

    property string productName
    /// The file form of the family, as "(*.tvx)".
    property string fileFilter
    readonly property string ending: fileFilter.replace(/[()*]/g, "")
    property Component experimentDelegate
    /// Whether several experiments are ticked and then accepted; else a click picks one.
    property bool severalAtOnce: false
    /// Whether what is accepted together has to be of one type.
    property bool oneType: false
    /// Whether a file that could not be written is told as a failed download too.
    property bool tellsFailedSaving: false
    /// A window with a signal cfgOK(cfg), as VfConfigurationWindow; made when it is first asked for.
    property Component configurationWindow
    /// What is read for it, in order, each with the dialog for its failure: [{read, failed}].
    property var readings: [{ read: core.acquireConfiguration, failed: dialogs.rcvCfgErrorDialog }]

    /// Positions in the list of what is to be downloaded.
    property var selectedIdx: []
    /// When the progress bar was last moved.
    property double painted: 0
    readonly property alias dialogs: dialogs
    readonly property alias replaceQuestion: replaceQuestion
    readonly property alias list: list
    readonly property alias progress: progress.value
    readonly property alias warningText1: warning.text
    readonly property alias configuration: configurationLoader.item
    readonly property alias saveDialog: saveFile.item

    signal downloadError()

    /// Reads what the configuration window shows; the window must be there to hear of it.
    function configure() {
        var reading = null
        configurationLoader.active = true
        root.wait(qsTr("Reading the configuration") + "...", function () {
            var code = root.deviceSuccessful
            for (var i = 0; i < readings.length && code === root.deviceSuccessful; ++i) {
                reading = readings[i]
                code = reading.read()
            }
            return code
        }, function (code) {
            if (dialogs.answered(code, reading.failed))
                configuration.present()
        })
    }

    /// Has job change something in the instrument, then done run. What failed half way may have changed some of it: the
    /// window then shows what is so.
    function send(what, job, done) {
        root.wait(what, function () {
            var code = job()
            if (code === root.deviceError || code === root.deviceBusy)
                core.acquireConfiguration()
            return code
        }, function (code) {
            if (!dialogs.answered(code, dialogs.configErrorDialog))
                return
            dialogs.configSuccesfulDialog.open()
            done()
        })
    }

    function sendConfiguration(cfg) {
        send(qsTr("Changing the configuration") + "...", function () { return core.sndConfiguration(cfg) }, function () {})
    }

    /// Ticks what is not ticked and the other way round, or picks one for good.
    function pick(index) {
        if (severalAtOnce) {
            var others = selectedIdx.filter(function (position) { return position !== index })
            selectedIdx = others.length < selectedIdx.length ? others : others.concat(index)
            return
        }
        selectedIdx = [index]
        chooseFile(proposedName())
    }

    function accept() {
        var types = selectedIdx.map(function (position) { return core.experimentList[position].type })
        if (types.length === 0)
            warning.text = qsTr("You shall select at least one exposure component")
        else if (oneType && types.some(function (type) { return type !== types[0] }))
            warning.text = qsTr("The selected exposure components shall be the same application")
        else
            chooseFile(proposedName())
    }

    /// What is picked, in the order of the list.
    function positions() { return selectedIdx.slice().sort(function (a, b) { return a - b }) }

    function chooseFile(name) {
        saveFile.open()
        if (root.outputs)
            root.outputs.propose(name)
    }

    function proposedName() {
        var picked = positions().map(function (position) { return core.experimentList[position] })
        return Experiments.proposedName(productName, core.device.SN, picked) + ending
    }

    /// Begins the download, unless a file would be lost that the user wants to keep.
    function save(fileUrls) {
        var file = fileOf(fileUrls)
        replaceQuestion.ask([file], fileUrls, function () { download(fileUrls) }, function () { chooseFile(file) })
    }

    function fileOf(fileUrls) {
        return root.outputs ? root.outputs.ofExperiment(productName, fileUrls) : String(fileUrls)
    }

    /// Downloads what is picked and saves it. The results show also when the file cannot be written; they tell of it.
    function download(fileUrls) {
        var wanted = JSON.stringify(positions())
        root.wait(qsTr("Downloading") + "...", function () {
            var code = core.createExperiment(wanted)
            if (code === root.deviceSuccessful)
                root.unsaved = core.saveExperimentToFile(fileUrls) === root.deviceSuccessful ? "" : fileOf(fileUrls)
            return code
        }, function (code) {
            progress.value = 0
            if (dialogs.answered(code, dialogs.downloadFailDialog) && root.unsaved && tellsFailedSaving)
                dialogs.downloadFailDialog.open()
        })
    }

    onSelectedIdxChanged: warning.text = ""

    VfDialogs { id: dialogs }
    VfReplaceQuestion { id: replaceQuestion; owner: page }

    PageBody {
        anchors.fill: parent

        VfList {
            id: list

            anchors { left: parent.left; right: parent.right; top: parent.top; bottom: warning.top }
            headerlabel: qsTr("Experiments")
            emptyText: qsTr("No experiments in the instrument's memory.")
            model: core.experimentList
            delegate: page.experimentDelegate
            checkable: page.severalAtOnce
            picked: page.selectedIdx
            onListClicked: page.pick(indexItem)
            onModelChanged: page.selectedIdx = []
        }
        VfText {
            id: warning

            anchors { left: parent.left; right: parent.right; bottom: progress.top; bottomMargin: Theme.spacing }
            color: Theme.warning
            height: page.severalAtOnce ? implicitHeight : 0
            topPadding: Theme.gap
            wrapMode: Text.Wrap
            Accessible.role: Accessible.AlertMessage
            Accessible.name: text
        }
        VfProgressBar {
            id: progress

            anchors { left: parent.left; right: parent.right; bottom: parent.bottom }
        }

        actions: [
            MyButton { buttonLabel: qsTr("Configure"); onMyButtonclicked: page.configure() },
            MyButton { buttonLabel: qsTr("Accept"); visible: page.severalAtOnce; onMyButtonclicked: page.accept() }
        ]
    }

    Loader {
        id: configurationLoader

        active: false
        sourceComponent: page.configurationWindow
        onLoaded: item.dialogs = dialogs
    }

    LazyDialog {
        id: saveFile

        sourceComponent: FileDialog {
            id: saveDialog

            title: qsTr("Save file as")
            selectExisting: false
            nameFilters: [qsTr("Suite Morvane Files ") + page.fileFilter, qsTr("All files ") + "(*)"]
            onAccepted: page.save(saveDialog.fileUrls)
        }
    }

    Connections {
        target: configurationLoader.item
        function onCfgOK(cfg) { page.sendConfiguration(cfg) }
    }

    Connections {
        target: core
        function onProgressBarUpdated(progressed) {
            if (core.devName !== page.productName)
                return
            // Ten frames in a second: one for each answer would hold up the next.
            var now = Date.now()
            if (progressed > 0 && progressed < 100 && now - page.painted < 100)
                return
            page.painted = now
            progress.value = progressed
        }
        function onDeviceDisconnected() {
            if (configurationLoader.item)
                configurationLoader.item.hide()
        }
    }
}
