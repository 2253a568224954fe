// SPDX-License-Identifier: GPL-3.0-or-later
import QtQuick 2.15
import "widgets"
import "pages"
import "shell"
import "shell/local.js" as Local

/// The shell: the pages, of which the state shows one, and what all pages know of codes, numbers and dates.
Rectangle {
    readonly property int deviceDisconnected: -3
    readonly property int deviceBusy: -2
    readonly property int deviceError: -1
    readonly property int deviceSuccessful: 0

    readonly property int expEmptyList: -4
    readonly property int expUniqueItem: -3
    readonly property int expFirstItem: -2
    readonly property int expLastItem: -1
    readonly property int expMiddleItem: 0

    property string lastState: "base state"

    /// What the program knows of files before they are written; null where nobody knows.
    property QtObject outputs: null
    /// The file that could not be written although the experiment on screen should stand in it.
    property string unsaved

    property alias pageHome: pageHome
    property alias backButton: backButton
    readonly property alias dialogs: dialogs
    /// Whether something is being waited for: the pages are locked then.
    readonly property alias busy: waiting.busy
    readonly property alias busyText: waiting.text

    /// The pages of each product that can be connected.
    readonly property var families: ({
        "THALVEX 2": thalvex2,
        "THALVEX 4": thalvex4,
        "ARDEL 2": ardel2,
        "NEMBRA": nembra,
        "NEMBRA+": nembraPlus,
        "LOMTRIX": lomtrix,
        "ZELK": zelk
    })

    function numberToLocalString(num) { return Local.numberText(num, Qt.locale()) }
    function convertDateTimeATToLocalTimeString(date) { return Local.dateTime(date) }
    function leftPad(number, targetLength) { return Local.leftPad(number, targetLength) }

    /// Waits for job, which what tells the user of, and hands its outcome to done.
    function wait(what, job, done) { waiting.wait(what, job, done) }

    /// Shows page in state, from where its back button returns to the state before.
    function enter(page, newState) {
        if (state !== newState)
            page.caller = state
        state = newState
    }

    /// Shows the page of a connected product; one without a page changes nothing.
    function enterFamily(product) {
        if (product in families)
            families[product].enter()
    }

    anchors.fill: parent
    color: Theme.ground

    states: [
        PageState { name: "Thalvex2State"; page: thalvex2.page },
        PageState { name: "Thalvex2ResultsState"; page: thalvex2.results },
        PageState { name: "Thalvex4State"; page: thalvex4.page },
        PageState { name: "Thalvex4ResultsState"; page: thalvex4.results },
        PageState { name: "Ardel2State"; page: ardel2.page },
        PageState { name: "ArdelResultsState"; page: ardel2.results },
        PageState { name: "NembraState"; page: nembra.page },
        PageState { name: "NembraResultsState"; page: nembra.results },
        PageState { name: "NembraPlusState"; page: nembraPlus.page },
        PageState { name: "NembraPlusResultsState"; page: nembraPlus.results },
        PageState { name: "LomtrixState"; page: lomtrix.page },
        PageState { name: "LomtrixComponentsState"; page: lomtrix.exposure },
        PageState { name: "LomtrixResultsState"; page: lomtrix.results },
        PageState { name: "ZelkState"; page: zelk.page; backPage: thalvex2.page }, // meant
        PageState { name: "ZelkResultsState"; page: zelk.results }
    ]

    Rectangle {
        id: boderLeft

        anchors { left: parent.left; top: parent.top; bottom: parent.bottom }
        width: 40
        color: Theme.strip

        MyImageButton {
            id: backButton

            property VfPage page: null

            anchors { horizontalCenter: parent.horizontalCenter; top: parent.top; topMargin: Theme.margin }
            visible: false
            enabled: visible && !root.busy // nor has it the keyboard while hidden
            imgbtnpicdef: "/voltar1x.png"
            imgbtnpichover: "/voltar1xhover.png"
            imgbtnpicclicked: "/voltar1xclicked.png"
            label: qsTr("Back")
            onMyImgBtnClicked: root.state = page ? page.caller : "" // that of another family may not be made yet
        }
    }

    Item {
        id: pages

        anchors { left: boderLeft.right; right: parent.right; top: parent.top; bottom: parent.bottom }

        PageHome { id: pageHome; anchors.fill: parent }
        FamilyPages { id: thalvex2; product: "THALVEX 2"; name: "Thalvex2" }
        FamilyPages { id: thalvex4; product: "THALVEX 4"; name: "Thalvex4" }
        FamilyPages {
            id: ardel2

            product: "ARDEL 2"
            name: "Ardel2"
            folder: "ardel"
            resultsState: "ArdelResultsState"
        }
        FamilyPages { id: nembra; product: "NEMBRA"; name: "Nembra" }
        FamilyPages { id: nembraPlus; product: "NEMBRA+"; name: "NembraPlus"; entered: nembra.page } // meant
        FamilyPages { id: lomtrix; product: "LOMTRIX"; name: "Lomtrix"; asksExposure: true }
        FamilyPages { id: zelk; product: "ZELK"; name: "Zelk" }

        Image {
            anchors { right: parent.right; top: parent.top; margins: Theme.gap * 2 }
            source: "/morvane.png"
            sourceSize.height: 40 // scaled once while loading: a mipmap would hold up the first frame
            Accessible.role: Accessible.Graphic
            Accessible.name: "Morvane"
        }
    }

    VfText {
        anchors { left: pages.left; bottom: parent.bottom; margins: Theme.margin }
        color: Theme.quietText
        text: waiting.text
        Accessible.role: Accessible.AlertMessage
        Accessible.name: text
    }

    Waiting { id: waiting }
    VfDialogs { id: dialogs }

    Connections {
        target: core
        function onDeviceDisconnected() { root.state = "base state" }
        function onExperimentUpdated() { root.unsaved = "" }
        function onUnsupportedDevice() { dialogs.unsupportedDeviceDialog.open() }
    }
}
