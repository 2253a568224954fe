// SPDX-License-Identifier: GPL-3.0-or-later
import QtQuick 2.15
import "../widgets"
import "experiments.js" as Experiments
import "records.js" as Records

/// The base of the results pages: hears of every new experiment, takes those of its own product, and walks along a chain.
/// A family names its data block, its view and its report window, and fills the view.
VfPage {
    id: page

    property string productName
    /// The block of experiment data; its item has a property experiment, and takes no more than the width room.
    property Component info
    /// The heavy inside, made with the first experiment.
    property Component view
    property Component reportWindow
    /// The experiment shown, parsed; its item of the view, and the report window once it was asked for.
    property var experiment: null
    readonly property alias viewItem: viewLoader.item
    readonly property alias infoItem: infoLoader.item
    readonly property alias reportItem: reportLoader.item
    readonly property alias dialogs: dialogs
    readonly property alias replaceQuestion: replaceQuestion
    property alias previousVisible: previous.visible
    property alias nextVisible: next.visible

    signal showResults()

    /// A family hands the experiment to its view, which has a function forget() too.
    function fill(parsed) {}

    /// Every results page hears of every experiment, and even to look at a long text costs. The page of the session's
    /// product looks at once; the others look only when the experiment turned out not to be that page's.
    function update(position) {
        if (!core.devName || core.devName === productName)
            take(position)
        else
            Qt.callLater(takeLeft, position)
    }

    function takeLeft(position) {
        if (Experiments.taken !== core.devName)
            take(position)
    }

    function take(position) {
        var text = core.experiment.toString(), own = Experiments.deviceName(text) === productName
        if (core.devName === productName)
            Experiments.taken = own ? productName : ""
        if (!own)
            return
        // Records are many: let go of the old ones first.
        experiment = null
        if (viewItem) {
            viewItem.forget()
            infoItem.experiment = {}
        }
        experiment = Records.read(text)
        if (!experiment)
            return dialogs.invalidFileDialog.open()
        previous.visible = position === root.expLastItem || position === root.expMiddleItem
        next.visible = position === root.expFirstItem || position === root.expMiddleItem
        viewLoader.active = true
        infoLoader.active = true
        infoItem.experiment = experiment
        fill(experiment)
        showResults()
    }

    function openReport() {
        reportLoader.active = true
        reportLoader.item.experiment = experiment
        reportLoader.item.show()
        reportLoader.item.raise()
        reportLoader.item.requestActivate()
    }

    /// Makes the report, unless a file would be lost that the user wants to keep.
    function report(cfg) {
        var files = root.outputs ? root.outputs.ofReport(productName, cfg) : []
        replaceQuestion.ask(files, reportItem.asked, function () {
            reportItem.asked = ""
            if (core.generateReport(cfg) === -1)
                dialogs.printerErrorDialog.open()
        }, null, reportItem)
    }

    VfDialogs { id: dialogs }
    VfReplaceQuestion { id: replaceQuestion; owner: page }

    Loader {
        id: infoLoader

        active: false
        anchors { left: parent.left; top: parent.top; leftMargin: Theme.margin; topMargin: Theme.pageTop }
        sourceComponent: page.info
    }

    Binding {
        target: infoLoader.item
        property: "room"
        value: page.width - generate.width - arrows.width - 4 * Theme.margin
    }

    MyButton {
        id: generate

        anchors { left: infoLoader.right; verticalCenter: infoLoader.verticalCenter; leftMargin: Theme.margin }
        buttonLabel: qsTr("Generate report")
        onMyButtonclicked: page.openReport()
    }

    // Each arrow in a place of its own that no experiment's data move: clicks on one spot go one way, whatever is shown.
    Row {
        id: arrows

        anchors { right: parent.right; verticalCenter: infoLoader.verticalCenter; rightMargin: Theme.margin }
        spacing: Theme.spacing

        Item {
            implicitWidth: previous.implicitWidth
            implicitHeight: previous.implicitHeight
            Arrow { id: previous; backward: true; onMyImgBtnClicked: core.prevExp() }
        }
        Item {
            implicitWidth: next.implicitWidth
            implicitHeight: next.implicitHeight
            Arrow { id: next; onMyImgBtnClicked: core.nextExp() }
        }
    }

    VfText {
        id: unsaved

        anchors { left: parent.left; right: parent.right; top: infoLoader.bottom; margins: Theme.margin }
        anchors.topMargin: text ? Theme.gap : 0
        height: text ? implicitHeight : 0
        color: Theme.warning
        elide: Text.ElideRight
        maximumLineCount: 2
        text: root.unsaved && qsTr("This measurement is not saved. The file could not be written") + ": " + root.unsaved
        textFormat: Text.PlainText
        wrapMode: Text.Wrap
        Accessible.role: Accessible.AlertMessage
        Accessible.name: text
    }

    Loader {
        id: viewLoader

        active: false
        anchors {
            left: parent.left; right: parent.right; top: unsaved.bottom; bottom: parent.bottom
            leftMargin: Theme.margin; rightMargin: Theme.margin; topMargin: Theme.spacing; bottomMargin: Theme.spacing
        }
        sourceComponent: page.view
    }

    Loader {
        id: reportLoader

        active: false
        sourceComponent: page.reportWindow
    }

    Connections {
        target: reportLoader.item
        function onConfirmedOK(cfg) { page.report(cfg) }
    }

    Connections {
        target: core
        function onExperimentUpdated(position) { page.update(position) }
        function onResultsUpdated(position) { page.update(position) }
        function onDeviceDisconnected() {
            if (reportLoader.item)
                reportLoader.item.close()
        }
    }
}
