// SPDX-License-Identifier: GPL-3.0-or-later
import QtQuick 2.15

/// The pages of one family: that of its instrument, that of results and, if it has one, that of exposure times between them.
/// Each is made when it is first needed, so that a family costs the start nothing.
Item {
    id: family

    property string product
    /// The family's name in its files and states: "Thalvex2" has PageThalvex2.qml and the state Thalvex2State.
    property string name
    property string folder: name.toLowerCase()
    property string resultsState: name + "ResultsState"
    readonly property string source: "../../" + folder + "/qml/Page" + name
    /// Whether times of exposure are asked for between an experiment and its results.
    property bool asksExposure: false
    readonly property Item page: pageLoader.item
    readonly property Item exposure: exposureLoader.item
    readonly property Item results: resultsLoader.item
    /// The page that is told from where the instrument's was entered.
    property Item entered: page

    function make(loader, ending) {
        if (!loader.item)
            loader.setSource(source + ending + ".qml", { visible: false })
    }

    /// Shows the page of the instrument.
    function enter() {
        make(pageLoader, "")
        root.enter(entered || page, name + "State")
        soon.start()
    }

    /// A page that is there hears of experiments by itself.
    function look(loader, ending, position) {
        if (loader.item || core.devName !== product)
            return
        make(loader, ending)
        loader.item.update(position)
    }

    anchors.fill: parent

    Loader { id: pageLoader; anchors.fill: parent }
    Loader { id: exposureLoader; anchors.fill: parent }
    Loader { id: resultsLoader; anchors.fill: parent }

    // Who looks at an instrument will want results: they are made while the user looks, not behind a download.
    Timer {
        id: soon

        interval: 200
        onTriggered: {
            if (family.asksExposure)
                family.make(exposureLoader, "ExposureComponents")
            family.make(resultsLoader, "Results")
        }
    }

    Connections {
        target: family.page
        function onDownloadError() { root.dialogs.downloadFailDialog.open() }
    }
    Connections {
        target: family.results
        function onShowResults() { root.enter(family.results, family.resultsState) }
    }
    Connections {
        target: family.exposure
        function onShowTimeExp() { root.enter(family.exposure, family.name + "ComponentsState") }
    }
    Connections {
        target: core
        function onExperimentUpdated(position) {
            if (family.asksExposure)
                family.look(exposureLoader, "ExposureComponents", position)
            else
                family.look(resultsLoader, "Results", position)
        }
        function onResultsUpdated(position) { family.look(resultsLoader, "Results", position) }
    }
}
