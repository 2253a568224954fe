// SPDX-License-Identifier: GPL-3.0-or-later
import QtQuick 2.15
import QtTest 1.15
import "qrc:/qml"
import "qrc:/qml/widgets"
import "qrc:/qml/charts"
import "qrc:/qml/pages"
import "qrc:/qml/shell"
import "dialogs.js" as Dialogs
import "items.js" as Items

/// The shell with its pages: what it shows when, the ways back, and the home page.
Item {
    id: window

    property var made: null
    readonly property var root: made ? made.shell : null

    width: 1300
    height: 670

    Component {
        id: shells

        Item {
            property alias shell: root

            Root { id: root }
        }
    }

    TestCase {
        id: testCase

        readonly property var home: window.root ? window.root.pageHome : null

        name: "shell"
        when: windowShown
        visible: true
        width: window.width
        height: window.height

        function init() {
            core.reset()
            window.made = createTemporaryObject(shells, testCase, { width: width, height: height })
            verify(window.made)
            waitForRendering(window.made)
        }

        function cleanup() {
            Dialogs.closeAll(home.dialogs)
            Dialogs.closeAll(window.root.dialogs)
            if (home.about)
                home.about.close()
            if (home.openFileDialog)
                home.openFileDialog.close()
        }

        function settle() { tryVerify(function () { return !window.root.busy }) }

        function press(label) {
            mouseClick(Items.first(window.root, "buttonLabel", label))
            settle()
        }
        function back() { mouseClick(window.root.backButton) }

        /// The titles of the pages on screen.
        function shown() {
            return Items.all(window.root, function (item) { return item.pageTitle !== undefined })
                .map(function (item) { return item.pageTitle }).join()
        }

        function found(product) {
            core.deviceList = [{ productName: product, sn: "TX-0042", fw: "1.08" }]
            core.devName = product
            waitForRendering(window.made)
        }

        function pick() {
            mouseClick(home.list.view.itemAtIndex(0))
            settle()
        }

        function test_startsAtHome() {
            compare(shown(), "HOME")
            verify(!window.root.backButton.visible)
            window.root.state = "base state"
            compare(shown(), "HOME")
        }

        function test_openDevice_data() {
            return [{ tag: "THALVEX 2", page: "Thalvex 2", state: "Thalvex2State" },
                    { tag: "THALVEX 4", page: "Thalvex 4", state: "Thalvex4State" },
                    { tag: "ARDEL 2", page: "Ardel 2", state: "Ardel2State" },
                    { tag: "NEMBRA", page: "Nembra", state: "NembraState" },
                    { tag: "NEMBRA+", page: "Nembra+", state: "NembraPlusState" },
                    { tag: "LOMTRIX", page: "Lomtrix", state: "LomtrixState" },
                    { tag: "ZELK", page: "ZELK", state: "ZelkState" },
                    { tag: "TOASTER", page: "HOME", state: "" }]
        }

        function test_openDevice(row) {
            found(row.tag)
            compare(Items.texts(home.list.view.itemAtIndex(0)), [row.tag, "SN: TX-0042", "Fw: 1.08"])
            pick()
            compare(core.calls, [["createDevice", 0], ["setTimeNow"], ["findExperiments"]])
            compare([shown(), window.root.state], [row.page, row.state])
            if (row.state === "")
                return
            back()
            compare([shown(), window.root.backButton.visible], ["HOME", false])
        }

        function test_openDeviceFails_data() {
            var rows = []
            var steps = ["createDevice", "setTimeNow", "findExperiments"]
            steps.forEach(function (step, i) {
                [[-1, ""], [-2, "deviceBusyDialog"], [-3, "devDisconnectedDialog"], [7, ""]].forEach(function (code) {
                    rows.push({ tag: step + " " + code[0], step: step, code: code[0], dialog: code[1], calls: i + 1 })
                })
            })
            return rows
        }

        function test_openDeviceFails(row) {
            core.codes = { [row.step]: row.code }
            found("THALVEX 2")
            pick()
            compare(core.calls.length, row.calls)
            compare(Dialogs.open(home.dialogs), row.dialog)
            compare(shown(), "HOME")
        }

        function showResults(product) {
            core.devName = product
            core.experiment = JSON.stringify({ date: "21/03/05,14:30:00-12", deviceName: product, logList: [], results: {} })
            core.experimentUpdated(-3)
        }

        function test_resultsOfAFile_data() {
            return [{ tag: "THALVEX 2", page: "Thalvex 2 - Results", state: "Thalvex2ResultsState" },
                    { tag: "THALVEX 4", page: "Thalvex 4 - Results", state: "Thalvex4ResultsState" },
                    { tag: "ARDEL 2", page: "Ardel 2 - Results", state: "ArdelResultsState" },
                    { tag: "NEMBRA", page: "Nembra - Results", state: "NembraResultsState" },
                    { tag: "NEMBRA+", page: "Nembra+ - Results", state: "NembraPlusResultsState" },
                    { tag: "LOMTRIX", page: "Lomtrix - Exposure time", state: "LomtrixComponentsState" },
                    { tag: "ZELK", page: "Zelk - Results", state: "ZelkResultsState" },
                    { tag: "TOASTER", page: "HOME", state: "" }]
        }

        function test_resultsOfAFile(row) {
            showResults(row.tag)
            showResults(row.tag)
            compare([shown(), window.root.state], [row.page, row.state])
            if (row.state === "")
                return
            back()
            compare(shown(), "HOME")
        }

        function test_wayBackFromADownload() {
            found("THALVEX 4")
            pick()
            showResults("THALVEX 4")
            compare(shown(), "Thalvex 4 - Results")
            back()
            compare(shown(), "Thalvex 4")
            back()
            compare(shown(), "HOME")
        }

        function test_wayBackOverExposureTimes() {
            found("LOMTRIX")
            pick()
            showResults("LOMTRIX")
            core.resultsUpdated(-3)
            var ways = [shown()]
            for (var i = 0; i < 3; ++i) {
                back()
                ways.push(shown())
            }
            compare(ways, ["Lomtrix - Results", "Lomtrix - Exposure time", "Lomtrix", "HOME"])
        }

        function test_disconnectedLeadsHome() {
            found("THALVEX 2")
            pick()
            showResults("THALVEX 2")
            core.deviceDisconnected()
            compare([shown(), window.root.state], ["HOME", "base state"])
        }

        function test_messagesOfTheShell() {
            core.unsupportedDevice()
            compare(Dialogs.open(window.root.dialogs), "unsupportedDeviceDialog")
            core.invalidFile()
            compare(Dialogs.open(home.dialogs), "invalidFileDialog")
        }

        function test_warningText() {
            core.findingDevices(33.333332)
            compare(home.warningText, "Looking for instruments [33.33 %]")
            core.findDeviceFinished()
            compare(home.warningText, "")
            core.fileReadStarted()
            compare(home.warningText, "Processing file...")
            core.fileReadFinished()
            compare(home.warningText, "")
        }

        function test_buttonsOfHome() {
            press("Find device")
            compare(core.calls, [["findDevices"]])
            press("Open file")
            verify(home.openFileDialog.visible)
            compare(Array.from(home.openFileDialog.nameFilters),
                    ["Suite Morvane Files (*.tvx *.tv4 *.adl *.lmt *.nbr *.nbp *.zlk)", "All files (*)"])
            home.openFileDialog.accepted()
            settle()
            compare(core.calls[1][0], "parseFile")
        }

        function test_lockedWhileItWaits_data() {
            return [{ tag: "click on the instrument", property: "serialNumber", value: "1" },
                    { tag: "click on the other", property: "serialNumber", value: "2" },
                    { tag: "Find device", property: "buttonLabel", value: "Find device" },
                    { tag: "Open file", property: "buttonLabel", value: "Open file" },
                    { tag: "About", property: "buttonLabel", value: "About" },
                    { tag: "Return", key: Qt.Key_Return }, { tag: "Down", key: Qt.Key_Down }]
        }

        /// What is clicked or pressed in the middle of a connection does nothing, then or later.
        function test_lockedWhileItWaits(row) {
            core.deviceList = [{ productName: "THALVEX 2", sn: "1", fw: "1" }, { productName: "THALVEX 4", sn: "2", fw: "1" }]
            core.devName = "THALVEX 2"
            waitForRendering(window.made)
            home.list.view.forceActiveFocus()
            var item = Items.first(home, row.property, row.value)
            var input = function () {
                if (row.key)
                    keyClick(row.key)
                else
                    mouseDoubleClickSequence(item)
            }
            core.meanwhile = input
            mouseClick(home.list.view.itemAtIndex(0))
            tryCompare(core, "calls", [["createDevice", 0], ["setTimeNow"], ["findExperiments"]])
            compare([window.root.busyText, window.root.busy], ["", true])
            input()
            core.meanwhile = null
            settle()
            compare([core.calls.length, window.root.state, Dialogs.open(home.dialogs)], [3, "Thalvex2State", ""])
            verify(!home.about && !home.openFileDialog && home.list.currentIndex === 0)
        }

        function test_saysWhatItWaitsFor() {
            var said = []
            core.meanwhile = function () { said.push(window.root.busyText) }
            found("THALVEX 2")
            pick()
            compare(said, ["Connecting...", "Connecting...", "Connecting..."])
            compare(window.root.busyText, "")
        }

        function test_whatIsHiddenHasNoFocus() {
            found("THALVEX 2")
            pick()
            var page = Items.first(window.root, "productName", "THALVEX 2")
            core.experimentList = [{ index: 1, dateTime: new Date(2021, 2, 5), size: 1 }]
            page.list.view.forceActiveFocus()
            keyClick(Qt.Key_Down)
            showResults("THALVEX 2")
            keyClick(Qt.Key_Return)
            compare([page.list.currentIndex, page.saveDialog], [0, null])
            back()
            window.root.backButton.forceActiveFocus()
            keyClick(Qt.Key_Return)
            compare(window.root.state, "")
            verify(!window.root.backButton.activeFocus)
            keyClick(Qt.Key_Return)
            compare(shown(), "HOME")
        }

        function test_about() {
            press("About")
            verify(home.about.visible)
            compare([home.about.width, home.about.height, home.about.title], [600, 300, "About Suite Morvane"])
            var texts = Items.texts(home.about.contentItem)
            verify(texts.indexOf("Built on Oct  9 2019 - 09:37:01") > 0)
            verify(texts.indexOf("From revison 716") > 0)
            mouseClick(Items.first(home.about.contentItem, "buttonLabel", "Close"))
            verify(!home.about.visible)
        }
    }
}
