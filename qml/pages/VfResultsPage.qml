// SPDX-License-Identifier: GPL-3.0-or-later
import QtQuick 2.15
import "../widgets"
import "experiments.js" as Experiments
import "records.js" as Records

/// The base of the results pages: hears of every new experiment, and walks along a chain. A family names its data block, its
/// view and its report window, and fills the view.
VfExperimentPage {
    id: page

    /// Whether another page comes between an experiment and its results.
    property bool afterAnother: false
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

    /// Only the results of the experiment shown are new: its records, and what the user looks at or types, can stay.
    function refreshed(parsed) { fill(parsed) }

    /// Records are many: the old ones go before others come.
    function letGo() {
        experiment = null
        if (!viewItem)
            return
        viewItem.forget()
        infoItem.experiment = {}
    }

    function take(text, position) {
        var same = experiment !== null && Experiments.member(text, "eventIndex") === experiment.eventIndex
        var records = same ? experiment.logList : null
        if (!same)
            letGo()
        experiment = Records.read(text)
        if (!experiment)
            return dialogs.invalidFileDialog.open()
        previous.visible = position === root.expLastItem || position === root.expMiddleItem
        next.visible = position === root.expFirstItem || position === root.expMiddleItem
        viewLoader.active = true
        infoLoader.active = true
        if (same)
            experiment.logList = records
        infoItem.experiment = experiment
        same ? refreshed(experiment) : fill(experiment)
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
        function onExperimentUpdated(position) {
            page.letGo()
            if (!page.afterAnother)
                page.update(position)
        }
        function onResultsUpdated(position) { page.update(position) }
        function onDeviceDisconnected() {
            if (reportLoader.item)
                reportLoader.item.close()
        }
    }
}
