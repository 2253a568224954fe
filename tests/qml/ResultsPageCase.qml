// SPDX-License-Identifier: GPL-3.0-or-later
import QtQuick 2.15
import QtQuick.Window 2.15
import QtTest 1.15
import "items.js" as Items

/// What every results page does; a family gives its page, an experiment and what it expects.
Item {
    id: testWindow

    property Component page
    property string product
    /// An experiment of the family, as the controller writes it.
    property var experiment
    /// Tells the page of the experiment.
    property var announce: function (position) { core.experimentUpdated(position) }
    /// The view that shows the records of the page.
    property var viewOf
    /// What the view shows in its first tab.
    property var firstTabOf: function (view) { return view.table }
    /// The lines of the data block.
    property var infoTexts: []
    /// Puts a text wherever an experiment has one; and the texts of a view that charts and tables take for markup.
    property var spoil
    property var markupOf
    property int reportWidth
    /// The keys of the texts of a report in order.
    property var reportTexts: ["cmpnyName", "siteName", "ownCompany", "collectorName", "repName", "repIdReg"]
    /// Further texts of a report.
    property var reportRest: ({})
    /// The visible boxes of the report window in order: {key, gone: the keys that go when it is off, changed: other values,
    /// unsent: whether its own key is never sent, off: whether it is off at first}.
    property var boxes: []

    width: 1260
    height: 670

    ResultsTestCase {
        id: testCase

        name: "results"
        family: testWindow

        function test_whoseExperiment_data() {
            var own = JSON.stringify(testWindow.experiment())
            var foreign = own.replace(testWindow.product, "OTHER")
            var quoted = '{"a": "\\"deviceName\\": \\"' + testWindow.product + '\\"", "deviceName": "OTHER", "logList": []}'
            var lengthy = "\"date\":\"" + new Array(400).join("x") + "\","
            return [
                { tag: "own", text: own, shown: 1 },
                { tag: "indented", text: JSON.stringify(testWindow.experiment(), null, 4), shown: 1 },
                { tag: "own, with a long text in front", text: own.replace("{", "{" + lengthy), shown: 1 },
                { tag: "own, with a part in front", text: own.replace("{", '{"a":{"deviceName":"OTHER"},'), shown: 1 },
                { tag: "foreign", text: foreign, shown: 0 },
                { tag: "foreign, with a long text in front", text: foreign.replace("{", "{" + lengthy), shown: 0 },
                { tag: "foreign, with the product in a text", text: quoted, shown: 0 },
                { tag: "no experiment", text: "", shown: 0 },
                { tag: "no JSON", text: "{\"date\": ", shown: 0 }
            ]
        }
        function test_whoseExperiment(row) {
            core.experiment = row.text
            testWindow.announce(-3)
            compare(shown.count, row.shown)
            compare(made.viewItem !== null, row.shown === 1)
        }

        function test_sessionOfAnother_data() {
            return [{ tag: "with an experiment of its own", device: "OTHER", text: "OTHER", shown: 0 },
                    { tag: "with one of this page's", device: "OTHER", text: testWindow.product, shown: 1 }]
        }
        function test_sessionOfAnother(row) {
            core.devName = row.device
            core.experiment = JSON.stringify(testWindow.experiment()).replace(testWindow.product, row.text)
            testWindow.announce(-3)
            var later = false
            Qt.callLater(function () { later = true })
            tryVerify(function () { return later })
            tryCompare(shown, "count", row.shown)
            // In a session of its own the page looks again.
            core.devName = testWindow.product
            testWindow.announce(-3)
            compare(shown.count, 2 * row.shown)
        }

        function test_dataBlock() {
            show()
            compare(Items.texts(made.infoItem), testWindow.infoTexts)
            show(-3, function (experiment) { experiment.date = experiment.results.startTime = ""; delete experiment.results.pauseTime })
            var texts = Items.texts(made.infoItem)
            compare([texts[texts.indexOf("Date:") + 1], texts[texts.indexOf("Pause time:") + 1]], ["---", "---"])
        }

        /// Of an experiment whose results alone are new the records stay.
        function test_newResults() {
            show(-2)
            var records = made.experiment.logList, experiment = testWindow.experiment()
            experiment.results.pauseTime = "00:00:11"
            for (var stays = true; experiment.eventIndex < 4; stays = false, ++experiment.eventIndex) {
                core.experiment = JSON.stringify(experiment)
                core.resultsUpdated(0)
                compare(made.experiment.logList === records, stays)
                verify(Items.texts(made.infoItem).indexOf("00:00:11") > 0)
            }
        }

        /// What a file says is text and of bounded length, wherever it is shown.
        function test_textsAreNoMarkup_data() {
            return [{ tag: "picture", text: "<img src=\"http://127.0.0.1:9/x\">" }, { tag: "entity", text: "&lt;b>" },
                    { tag: "absurdly long", text: new Array(100000).join("<i>") }]
        }
        function test_textsAreNoMarkup(row) {
            show(-3, function (experiment) { testWindow.spoil(experiment, row.text) })
            var report = Items.first(made, "buttonLabel", "Generate report")
            verify(report.mapToItem(made, report.width, 0).x < made.width, "the buttons stay in the window")
            var markup = []
            for (var tab = 0; tab < 3; ++tab) {
                view().setTab(tab)
                markup = markup.concat(Items.all(made, function (item) {
                    verify(item.textFormat === undefined || item.text.length < 1000, "cut")
                    return item.textFormat !== undefined && item.textFormat !== Text.PlainText
                }).map(function (item) { return item.text }))
            }
            markup = markup.concat(testWindow.markupOf(view()))
            compare(markup.join().match(/<(?!\/?su[bp]>)|&(?!lt;|gt;|amp;)/g), null)
            verify(markup.every(function (text) { return text.length < 1000 }))
        }

        /// Two rounds of Tab stop at the same places, all of them in sight, whatever tab was looked at before.
        function test_tabStops() {
            show(0)
            view().setTab(1)
            view().setTab(0)
            tryVerify(function () { return Math.abs(testWindow.firstTabOf(view()).mapToItem(view(), 0, 0).x) < view().width })
            var rounds = []
            Items.first(made, "buttonLabel", "Generate report").forceActiveFocus(Qt.TabFocusReason)
            for (var i = 0; i < 2; ++i) {
                var stops = []
                do {
                    var stop = testCase.Window.window.activeFocusItem
                    while (!stop.activeFocusOnTab)
                        stop = stop.parent
                    verify(stop.visible && stop.enabled && Math.abs(stop.mapToItem(made, 0, 0).x) < made.width, stop)
                    stops.push(String(stop))
                    keyClick(Qt.Key_Tab)
                } while (testCase.Window.window.activeFocusItem.buttonLabel !== "Generate report" && stops.length < 50)
                rounds.push(stops.join())
            }
            verify(stops.length > 5 && stops.length < 50)
            compare(rounds[1], rounds[0])
        }

        function test_arrows_data() {
            return [{ tag: "no experiment", position: -4, left: false, right: false },
                    { tag: "the only one", position: -3, left: false, right: false },
                    { tag: "first", position: -2, left: false, right: true },
                    { tag: "last", position: -1, left: true, right: false },
                    { tag: "middle", position: 0, left: true, right: true }]
        }
        function test_arrows(row) {
            show(-3)
            core.resultsUpdated(row.position)
            drawn(made)
            var left = Items.first(made, "label", "Previous experiment")
            var right = Items.first(made, "label", "Next experiment")
            compare([left !== null, right !== null], [row.left, row.right])
            var calls = []
            if (left) { mouseClick(left); calls.push(["prevExp"]) }
            if (right) { mouseClick(right); calls.push(["nextExp"]) }
            compare(core.calls, calls)
        }

        /// Clicks on one spot walk along a chain, whichever arrows are there and however long the data beside them.
        function test_arrowsKeepTheirPlaces() {
            show(-2)
            drawn(made)
            var next = Items.first(made, "label", "Next experiment")
            var spot = next.mapToItem(made, next.width / 2, next.height / 2);
            [-2, 0, 0, 0, -1].forEach(function (position, i) {
                show(position, function (experiment) { experiment.results.duration += "0".repeat(40 * (i % 2)) })
                drawn(made)
                mouseClick(made, spot.x, spot.y)
            })
            compare(core.calls, [["nextExp"], ["nextExp"], ["nextExp"], ["nextExp"]])
        }

        function report() {
            show()
            clickOn("buttonLabel", "Generate report")
            tryCompare(made.reportItem, "visible", true)
            drawn(made.reportItem.contentItem)
            return made.reportItem
        }

        function reportBoxes() {
            return Items.all(made.reportItem.contentItem, function (item) {
                return item.checkState !== undefined
            })
        }

        function submitted() {
            core.calls = []
            clickOn("buttonLabel", "Generate PDF", made.reportItem.contentItem)
            return core.calls.length > 0 ? JSON.parse(core.calls[0][1]) : null
        }

        function pickFile() {
            Items.all(made.reportItem.contentItem, function (item) { return item.pick && item.nameFilters })[0]
                .pick("file:///tmp/a b/100%25 n%231.pdf")
        }

        function test_report() {
            var window = report(), everything = {}
            compare(window.width, testWindow.reportWidth)
            var names = reportBoxes().map(function (box) { return box.Accessible.name })
            verify(names.every(function (name, i) { return names.indexOf(name) === i }), "each says its group")
            compare(submitted(), null)
            verify(Items.texts(window.contentItem).indexOf("File name shall not be empty") >= 0)

            pickFile()
            Items.all(window.contentItem, function (item) { return item.labelWidth !== undefined })
                .forEach(function (field, i) { everything[testWindow.reportTexts[i]] = field.text = "text " + i })
            testWindow.boxes.filter(function (box) { return !box.unsent })
                .forEach(function (box) { everything[box.key] = !box.off })
            Object.assign(everything, testWindow.reportRest, { logoFile: "", obsText: "", fileName: "/tmp/a b/100% n#1.pdf" })
            compare(sorted(submitted()), sorted(everything))
            verify(Items.texts(window.contentItem).indexOf("File name shall not be empty") < 0)
        }

        /// What the file's dialog has asked of itself is not asked again, but once only.
        function test_reportAsksBeforeReplacing() {
            report()
            pickFile()
            root.outputs.present = ["/tmp/a b/100% n#1.pdf"]
            verify(submitted())
            root.outputs.present = ["/tmp/a b/100% n#1.pdf", "beside.csv"]
            compare(submitted(), null)
            var question = made.replaceQuestion.window
            verify(Items.texts(question.contentItem)[0].indexOf("/tmp/a b/100% n#1.pdf\nbeside.csv\n") > 0)
            clickOn("buttonLabel", "No", question.contentItem)
            compare([core.calls, made.reportItem.visible], [[], true])
            compare(submitted(), null)
            clickOn("buttonLabel", "Yes", question.contentItem)
            compare(core.calls.length, 1)
            root.outputs.present = []
        }

        function sorted(object) {
            return Object.keys(object).sort().map(function (key) { return key + "=" + object[key] })
        }

        function test_reportSwitch_data() {
            return testWindow.boxes.map(function (box, i) { return { tag: box.key, place: i, on: !box.off, gone: box.gone || [],
                                                           unsent: box.unsent, changed: box.changed || {} } })
        }
        function test_reportSwitch(row) {
            report()
            pickFile()
            var everything = submitted()
            compare(reportBoxes().length, testWindow.boxes.length)
            mouseClick(reportBoxes()[row.place], 8, 12)
            var cfg = submitted()
            compare(cfg[row.tag], row.unsent ? undefined : !row.on)
            if (!row.unsent)
                everything[row.tag] = !row.on
            Object.assign(everything, row.changed)
            row.gone.forEach(function (key) {
                verify(key in everything, key)
                delete everything[key]
            })
            compare(sorted(cfg), sorted(everything))

            made.reportItem.close()
            clickOn("buttonLabel", "Generate report")
            compare(reportBoxes().map(function (box) { return box.checked }),
                    testWindow.boxes.map(function (box) { return !box.off }))
        }

        function test_reportFails() {
            report()
            pickFile()
            core.codes = { generateReport: -1 }
            submitted()
            tryCompare(made.dialogs.printerErrorDialog, "visible", true)
            made.dialogs.printerErrorDialog.close()
        }

        function test_disconnectedClosesReport() {
            var window = report()
            core.deviceDisconnected()
            compare(window.visible, false)
        }
    }
}
