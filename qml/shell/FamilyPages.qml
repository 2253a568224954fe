// SPDX-License-Identifier: GPL-3.0-or-later
import QtQuick 2.15

/// The pages of one family: that of its instrument and that of results. Each is made when it is first needed, so that a
/// family costs the start nothing.
Item {
    id: family

    property string product
    /// The family's name in its files and states: "Thalvex2" has PageThalvex2.qml and the state Thalvex2State.
    property string name
    readonly property string folder: "../../" + name.toLowerCase() + "/qml/Page" + name
    readonly property Item page: pageLoader.item
    readonly property Item results: resultsLoader.item
    /// The page that is told from where the instrument's was entered.
    property Item entered: page

    /// Shows the page of the instrument.
    function enter() {
        if (!page)
            pageLoader.setSource(folder + ".qml", { visible: false })
        root.enter(entered || page, name + "State")
        soon.start()
    }

    function makeResults() {
        if (!results)
            resultsLoader.setSource(folder + "Results.qml", { visible: false })
    }

    /// A page that is there hears of experiments by itself.
    function look(position) {
        if (results || core.devName !== product)
            return
        makeResults()
        results.update(position)
    }

    anchors.fill: parent

    Loader { id: pageLoader; anchors.fill: parent }
    Loader { id: resultsLoader; anchors.fill: parent }

    // Who looks at an instrument will want results: they are made while the user looks, not behind a download.
    Timer { id: soon; interval: 200; onTriggered: family.makeResults() }

    Connections {
        target: family.page
        function onDownloadError() { root.dialogs.downloadFailDialog.open() }
    }
    Connections {
        target: family.results
        function onShowResults() { root.enter(family.results, family.name + "ResultsState") }
    }
    Connections {
        target: core
        function onExperimentUpdated(position) { family.look(position) }
        function onResultsUpdated(position) { family.look(position) }
    }
}
