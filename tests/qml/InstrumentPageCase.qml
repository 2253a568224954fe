// SPDX-License-Identifier: GPL-3.0-or-later
import QtQuick 2.15
import QtTest 1.15
import "dialogs.js" as Dialogs
import "items.js" as Items

/// What the page of every connected instrument does; a family gives its page and what is its own.
Item {
    id: testWindow

    property Component page
    property string product
    property string title
    property string configurationTitle: title + " - Configuration"
    property var nameFilters
    property int configurationWidth: 600
    property int configurationHeight: 340
    /// What the configuration window is filled from, in order, each with the dialog for its failure.
    property var readings: [["acquireConfiguration", "rcvCfgErrorDialog"]]
    /// The part of the window that has the configuration, and its property for what is typed.
    property var bodyOf: function (window) { return window }
    property string typedInto: "sampleTime"
    /// A configuration as the page reads it, without its product.
    property var configuration
    /// Configurations and what is shown of them: {tag, configuration, ticked, texts}; disabled is a button that cannot be pressed.
    property var fillRows
    /// What is sent: {tag, configuration, typed, pick, sent}; without sent the window shows the refusal, the row's or this.
    property var applyRows
    property string refusal
    /// Whether several experiments are ticked and accepted.
    property bool several: false
    /// Whether those have to be of one type; the second experiment is then of another type than the others.
    property bool oneType: false
    /// The experiments in the instrument's memory, and the texts of the second one's item.
    property var experiments
    property var secondTexts

    width: 1260
    height: 670

    TestCase {
        id: testCase

        property var made: null

        name: "instrument"
        when: windowShown
        visible: true
        width: testWindow.width
        height: testWindow.height

        function init() {
            core.reset()
            root.outputs.present = []
            root.unsaved = ""
            core.devName = testWindow.product
            core.experimentList = testWindow.experiments
            made = createTemporaryObject(testWindow.page, testCase, { width: width, height: height })
            verify(made)
            waitForRendering(made)
        }

        function cleanup() {
            Dialogs.closeAll(made.dialogs)
            if (made.saveDialog)
                made.saveDialog.close()
            if (made.configuration)
                made.configuration.close()
        }

        function press(item, label) {
            var button = Items.first(item, "buttonLabel", label)
            verify(button, label)
            mouseClick(button)
        }

        /// Shows the window with a configuration, as the instrument would be asked for it.
        function configured(configuration) {
            press(made, "Configure")
            core.configuration = JSON.stringify(Object.assign({ productName: testWindow.product }, configuration))
            core.configurationUpdated()
            var apply = Items.first(made.configuration.contentItem, "buttonLabel", "Apply") // tabs take a frame
            tryVerify(function () { return apply.mapToItem(null, 0, 0).y > made.configuration.height / 2 })
            return made.configuration
        }

        function namesOf(calls) { return calls.map(function (call) { return call[0] }).join(" ") }

        function test_title() { verify(Items.texts(made).indexOf(testWindow.title) >= 0) }

        function test_configure_data() {
            var rows = [{ tag: "read", codes: {}, dialog: "", calls: testWindow.readings.length, shown: true }]
            testWindow.readings.forEach(function (reading, i) {
                [[-1, reading[1]], [-2, "deviceBusyDialog"], [-3, "devDisconnectedDialog"], [7, ""]].forEach(function (code) {
                    rows.push({ tag: reading[0] + " " + code[0], codes: { [reading[0]]: code[0] }, dialog: code[1], calls: i + 1 })
                })
            })
            return rows
        }

        function test_configure(row) {
            core.codes = row.codes
            press(made, "Configure")
            compare(core.calls, testWindow.readings.slice(0, row.calls).map(function (reading) { return [reading[0]] }))
            compare(Dialogs.open(made.dialogs), row.dialog)
            compare(made.configuration.visible, row.shown === true)
        }

        function test_configurationWindow() {
            var window = configured(testWindow.configuration)
            compare([window.width, window.height], [testWindow.configurationWidth, testWindow.configurationHeight])
            compare(window.modality, Qt.ApplicationModal)
            compare(window.title, testWindow.configurationTitle)
            press(window.contentItem, "Close")
            verify(!window.visible)
            press(made, "Configure")
            verify(made.configuration === window && window.visible)
            core.deviceDisconnected()
            verify(!window.visible)
        }

        function test_fill_data() { return testWindow.fillRows }
        function test_fill(row) {
            var window = configured(testWindow.configuration)
            configured(row.configuration)
            var ticked = Items.all(window.contentItem, function (item) { return item.checked === true })
            compare(ticked.map(function (item) { return item.text }).join(), row.ticked);
            (row.texts || []).forEach(function (text) { verify(Items.first(window.contentItem, "text", text), text) })
            verify(!row.disabled || !Items.first(window.contentItem, "text", row.disabled).enabled)
        }

        function test_apply_data() { return testWindow.applyRows }
        function test_apply(row) {
            var window = configured(row.configuration || testWindow.configuration), body = testWindow.bodyOf(window)
            if (row.typed !== undefined)
                body[testWindow.typedInto] = row.typed
            if (row.pick)
                mouseClick(Items.first(window.contentItem, "text", row.pick))
            core.calls = []
            press(window.contentItem, "Apply")
            compare(core.calls.map(function (call) { return [call[0], JSON.parse(call[1])] }),
                    row.sent ? [["sndConfiguration", row.sent]] : [])
            compare(body.warning, row.sent ? "" : row.refusal || testWindow.refusal)
            verify(row.sent || Items.texts(window.contentItem).indexOf(body.warning) >= 0)
        }

        function test_applyAnswered_data() {
            return [{ tag: "applied", code: 0, dialog: "configSuccesfulDialog" },
                    { tag: "error", code: -1, dialog: "configErrorDialog", readAgain: true },
                    { tag: "busy", code: -2, dialog: "deviceBusyDialog", readAgain: true },
                    { tag: "disconnected", code: -3, dialog: "devDisconnectedDialog" }]
        }

        function test_applyAnswered(row) {
            core.codes = { sndConfiguration: row.code }
            var window = configured(testWindow.configuration)
            press(window.contentItem, "Apply")
            compare(Dialogs.open(made.dialogs), row.dialog)
            compare(core.calls[core.calls.length - 1][0], row.readAgain ? "acquireConfiguration" : "sndConfiguration")
        }

        function test_erase_data() {
            return [{ tag: "erased", code: 0, dialog: "eraseSuccessfulDialog" },
                    { tag: "error", code: -1, dialog: "eraseFailDialog" },
                    { tag: "busy", code: -2, dialog: "deviceBusyDialog" },
                    { tag: "disconnected", code: -3, dialog: "devDisconnectedDialog" }]
        }

        function test_erase(row) {
            var window = configured(testWindow.configuration)
            core.calls = []
            core.codes = { eraseMemory: row.code }
            press(window.contentItem, "Erase memory")
            compare(Dialogs.open(made.dialogs), "eraseDialog")
            compare(core.calls, [])
            core.devName = testWindow.product + " 9"
            core.eraseStarted()
            compare(Dialogs.open(made.dialogs), "eraseDialog")
            core.devName = testWindow.product
            core.meanwhile = function () {
                core.eraseStarted()
                compare(Dialogs.open(made.dialogs), "eraseInProgressDialog")
            }
            press(made.dialogs.eraseDialog.window.contentItem, "Yes")
            compare(core.calls, [["eraseMemory"]])
            compare(Dialogs.open(made.dialogs), row.dialog)
        }

        function test_eraseIsNotTheDefault_data() {
            return [{ tag: "Return", key: Qt.Key_Return }, { tag: "Space", key: Qt.Key_Space },
                    { tag: "Escape", key: Qt.Key_Escape }]
        }

        function test_eraseIsNotTheDefault(row) {
            made.dialogs.eraseDialog.open()
            var question = made.dialogs.eraseDialog.window
            tryVerify(function () { return question.active })
            question.contentItem.forceActiveFocus()
            keyClick(row.key)
            tryVerify(function () { return !question.visible })
            compare(core.calls, [])
        }

        function test_list() {
            compare(made.list.headerlabel, "Experiments")
            compare(made.list.count, testWindow.experiments.length)
            compare(Items.texts(made.list.view.itemAtIndex(1)), testWindow.secondTexts)
            verify(Items.texts(made.list.view.itemAtIndex(2)).indexOf("Date: ---") >= 0)
        }

        function pick(place) {
            mouseClick(made.list.view.itemAtIndex(place))
            if (testWindow.several)
                press(made, "Accept")
        }

        function test_clickPicks() {
            pick(1)
            compare(made.selectedIdx, [1])
            verify(made.saveDialog.visible)
            compare(made.saveDialog.title, "Save file as")
            compare(root.outputs.proposal, testWindow.product + " TX_0042 2 2021-03-05." + testWindow.nameFilters[0].slice(-4, -1))
            compare(Array.from(made.saveDialog.nameFilters), testWindow.nameFilters)
            verify(!made.saveDialog.selectExisting)
            compare(core.calls, [])
            core.experimentList = testWindow.experiments.slice(1)
            compare(made.selectedIdx, [])
            compare(made.list.currentIndex, -1)
        }

        function test_keyboardPicks_data() {
            return [{ tag: "Return", key: Qt.Key_Return }, { tag: "Space", key: Qt.Key_Space }]
        }

        function test_keyboardPicks(row) {
            made.list.view.forceActiveFocus()
            keyClick(Qt.Key_Down)
            keyClick(Qt.Key_Down)
            keyClick(row.key)
            compare(made.selectedIdx, [1])
            compare(made.saveDialog !== null && made.saveDialog.visible, !testWindow.several)
        }

        /// Ticks are counted by the page, whatever the items forget, and each click turns one round.
        function test_ticks() {
            if (!testWindow.several)
                return verify(!Items.first(made, "buttonLabel", "Accept"))
            press(made, "Accept")
            compare([made.warningText1, made.saveDialog], ["You shall select at least one exposure component", null])
            verify(Items.texts(made).indexOf(made.warningText1) >= 0)
            if (testWindow.oneType) {
                [1, 0].forEach(function (place) { mouseClick(made.list.view.itemAtIndex(place)) })
                press(made, "Accept")
                compare([made.warningText1, made.saveDialog],
                        ["The selected exposure components shall be the same application", null]);
                [0, 1].forEach(function (place) { mouseClick(made.list.view.itemAtIndex(place)) })
            }
            mouseClick(made.list.view.itemAtIndex(2));
            [1, 0, 1].forEach(function (place) { mouseClick(made.list.view.itemAtIndex(place)) })
            compare([made.selectedIdx, made.warningText1], [[2, 0], ""])
            compare([0, 1, 2].map(function (place) { return made.list.view.itemAtIndex(place).checked }), [true, false, true])
            press(made, "Accept")
            verify(root.outputs.proposal.indexOf(testWindow.product + " TX_0042 1+3 ") === 0)
            made.saveDialog.accepted()
            compare(core.calls[0], ["createExperiment", "[0,2]"])
        }

        function test_keyboardPresses() {
            core.codes = { acquireConfiguration: 7 }
            made.list.view.forceActiveFocus()
            keyClick(Qt.Key_Tab)
            keyClick(Qt.Key_Return)
            keyClick(Qt.Key_Space)
            compare(namesOf(core.calls), "acquireConfiguration acquireConfiguration")
        }

        function test_download_data() {
            return [{ tag: "saved", calls: "createExperiment saveExperimentToFile", dialog: "" },
                    { tag: "not written", save: -1, calls: "createExperiment saveExperimentToFile",
                      dialog: testWindow.several ? "downloadFailDialog" : "" },
                    { tag: "error", code: -1, calls: "createExperiment", dialog: "downloadFailDialog" },
                    { tag: "busy", code: -2, calls: "createExperiment", dialog: "deviceBusyDialog" },
                    { tag: "disconnected", code: -3, calls: "createExperiment", dialog: "devDisconnectedDialog" },
                    { tag: "overtaken", code: -4, calls: "createExperiment", dialog: "" }]
        }

        function test_download(row) {
            core.codes = { createExperiment: row.code || 0, saveExperimentToFile: row.save || 0 }
            pick(2)
            core.meanwhile = function () { core.progressBarUpdated(60) }
            made.saveDialog.accepted()
            compare(namesOf(core.calls), row.calls)
            compare(core.calls[0][1], "[2]")
            compare(Dialogs.open(made.dialogs), row.dialog)
            compare(made.progress, 0)
            compare(root.unsaved !== "", row.save === -1)
        }

        function test_asksBeforeReplacing() {
            root.outputs.present = ["file:///tmp/one.ending"]
            made.selectedIdx = [1]
            made.save("file:///tmp/one")
            press(made.replaceQuestion.window.contentItem, "No")
            compare([core.calls.length, made.saveDialog.visible, made.selectedIdx], [0, true, [1]])
            compare(root.outputs.proposal, "file:///tmp/one.ending")
            made.save("file:///tmp/one")
            press(made.replaceQuestion.window.contentItem, "Yes")
            compare(namesOf(core.calls), "createExperiment saveExperimentToFile")
        }

        function test_positionsAreSortedAsNumbers() {
            made.selectedIdx = [10, 9, 2]
            made.save(["file:///a%23b.file"])
            compare(core.calls, [["createExperiment", "[2,9,10]"], ["saveExperimentToFile", "file:///a%23b.file"]])
        }

        function test_progress() {
            core.progressBarUpdated(40)
            compare(made.progress, 40)
            core.devName = "ARDEL 2"
            core.progressBarUpdated(80)
            compare(made.progress, 40)
        }
    }
}
