// SPDX-License-Identifier: GPL-3.0-or-later
import QtQuick 2.15
import QtTest 1.15
import "qrc:/ardel/qml"
import "dialogs.js" as Dialogs
import "items.js" as Items

/// The page of the dosimeter, and the tab of its schedules.
InstrumentPageCase {
    id: testWindow

    readonly property date moment: new Date(2021, 2, 5, 14, 30)

    /// What goes to the instrument, with some of it changed.
    function sent(changed) { return Object.assign(JSON.parse(sentTexts["ardel2-configuration.json"]), changed) }

    /// What the instrument tells: its levels are numbers.
    function told(changed) {
        return Object.assign(sent({ actionLevel: 80, criterionLevel: 85, exchangeRate: 5 }), changed)
    }

    product: "ARDEL 2"
    title: "Ardel 2"
    page: Component { PageArdel2 {} }
    nameFilters: ["Suite Morvane Files (*.adl)", "All files (*)"]
    configurationWidth: 800
    configurationHeight: 570
    readings: [["acquireConfiguration", "rcvCfgErrorDialog"], ["acquireScheduleList", "rcvSchedulListDialog"]]
    bodyOf: function (window) { return window.settings }
    typedInto: "experimentDuration"
    configuration: told({})
    fillRows: [{ tag: "others", configuration: told({ timeWeighting: "Impulse", frequencyWeighting: "Z", octaveAnalysis: "1/1",
                 actionLevel: 0, criterionLevel: 90, exchangeRate: 3, scheduleStatus: false, experimentDuration: "00:01" }),
                 ticked: "Dosimeter,Impulse,Z,1/1", texts: ["0", "90", "3", "00:01"] },
               { tag: "beyond the ranges", configuration: told({ actionLevel: -1, criterionLevel: 140, exchangeRate: 10 }),
                 ticked: "Dosimeter,Slow,A,1/3,Enable schedule *", texts: ["-1", "140", "10"] },
               { tag: "no octaves", configuration: told({ octaveAnalysis: "" }),
                 ticked: "Dosimeter,Slow,A,Enable schedule *", disabled: "1/3" },
               { tag: "another product", configuration: told({ productName: "ARDEL", timeWeighting: "Fast", actionLevel: 1 }),
                 ticked: "Dosimeter,Slow,A,1/3,Enable schedule *", texts: ["80"] }]
    applyRows: [{ tag: "as read", sent: sent({}) },
                { tag: "picked", pick: "Fast", sent: sent({ timeWeighting: "Fast" }) },
                { tag: "schedules off", pick: "Enable schedule *", sent: sent({ scheduleStatus: false }) },
                { tag: "beyond the ranges", sent: sent({ actionLevel: "-1", criterionLevel: "140", exchangeRate: "10" }),
                  configuration: told({ actionLevel: -1, criterionLevel: 140, exchangeRate: 10 }) },
                { tag: "nothing known", sent: sent({ timeWeighting: "slow", frequencyWeighting: "B", octaveAnalysis: "" }),
                  configuration: told({ timeWeighting: "slow", frequencyWeighting: "B", octaveAnalysis: "" }) },
                { tag: "nine hours", typed: "09:00", sent: sent({ experimentDuration: "09:00" }) },
                { tag: "a minute more", typed: "09:01", refusal: "The experiment duration shall not be higher than 9 hours" },
                { tag: "a day", typed: "24:00" },
                { tag: "a digit short", typed: "8:00" },
                { tag: "empty", typed: "" }]
    refusal: "The experiment duration field shall have hh:mm format"
    experiments: [{ index: 1, dateTime: moment, size: 1 }, { index: 2, dateTime: moment, size: 32400, exp_Name: "<b>Forge, 2" },
                  { index: 3, dateTime: new Date(NaN), size: 5 }]
    secondTexts: ["2:", "<b>Forge, 2", "Date: " + moment.toLocaleString(Qt.locale(), Locale.LongFormat), "Size: 32400"]

    TestCase {
        id: testCase

        readonly property var schedule: JSON.parse(sentTexts["ardel2-schedule.json"])
        property var made: null
        property var settings: null
        property var schedules: null

        name: "schedules"
        when: windowShown
        visible: true
        width: testWindow.width
        height: testWindow.height

        function init() {
            core.reset()
            core.devName = "ARDEL 2"
            core.configuration = JSON.stringify(Object.assign({ productName: "ARDEL 2" }, testWindow.told({ scheduleStatus: false })))
            made = createTemporaryObject(testWindow.page, testCase, { width: width, height: height })
            made.configure()
            core.configurationUpdated()
            settings = made.configuration.settings
            schedules = made.configuration.schedules
            tryVerify(function () { return made.configuration.active && settings.height > 0 })
            mouseClick(Items.first(made.configuration.contentItem, "text", "Schedule"))
            tryVerify(function () { return schedules.enabled && schedules.mapToItem(null, 0, 0).x === 0 })
            core.calls = []
        }

        function cleanup() {
            Dialogs.closeAll(made.dialogs)
            made.configuration.close()
        }

        function field(label) { return Items.first(schedules.entry, "label", label) }
        function press(label) { mouseClick(Items.first(schedules, "buttonLabel", label)) }

        /// Puts a schedule, with some fields changed, into the fields.
        function put(changed) {
            var typed = Object.assign({ "Month day": "31", "Label": schedule.label, "Start time": "22:00", "Stop time": "06:00",
                                        "Pause time": "23:30", "Resume time": "00:30", "Break": true }, changed)
            Items.first(schedules.entry, "text", "Break").checked = typed.Break
            delete typed.Break
            for (var label in typed)
                field(label).text = typed[label]
        }

        function test_add_data() {
            var pauseless = Object.assign({}, schedule, { pausable: false })
            delete pauseless.pauseTime
            delete pauseless.resumeTime
            return [{ tag: "whole", changed: {}, sent: schedule },
                    { tag: "no break", changed: { Break: false, "Pause time": "9", "Resume time": "" }, sent: pauseless },
                    { tag: "no day", changed: { "Month day": "" }, state: "dayError", at: "Month day",
                      message: "The day shall be between 1 and 31." },
                    { tag: "day 0 and the rest", at: "Month day", state: "dayError", message: "The day shall be between 1 and 31.",
                      changed: { "Month day": "0", "Label": ",", "Start time": "", "Pause time": "", "Resume time": "", "Stop time": "" } },
                    { tag: "day 32", changed: { "Month day": "32" }, state: "dayError", at: "Month day",
                      message: "The day shall be between 1 and 31." },
                    { tag: "start and the rest", changed: { "Start time": "24:00", "Pause time": "", "Stop time": "" }, state: "startError",
                      at: "Start time", message: "Start time shall have hh:mm format" },
                    { tag: "pause and the rest", changed: { "Pause time": "2:30", "Resume time": "", "Stop time": "" }, state: "pauseError",
                      at: "Pause time", message: "Pause time shall have hh:mm format." },
                    { tag: "resume and stop", changed: { "Resume time": "00:60", "Stop time": "" }, state: "resumeError",
                      at: "Resume time", message: "Resume time shall have hh:mm format." },
                    { tag: "stop", changed: { "Stop time": "" }, state: "stopError", at: "Stop time",
                      message: "Stop time shall have hh:mm format." }].concat(
                [",", "\"", "\u0141", "\t"].map(function (sign) {
                    return { tag: "label of " + escape(sign), changed: { "Label": "a" + sign }, state: "labelError", at: "Label",
                             message: "The label shall have neither commas, double quotes nor signs unknown to the instrument." }
                }))
        }

        /// Asked twice, it is told twice where to mend.
        function test_add(row) {
            put(row.changed)
            for (var times = 1; times <= 2; ++times) {
                press("Add")
                compare(core.calls.map(function (call) { return [call[0], JSON.parse(call[1])] }),
                        row.sent ? Array(times).fill(["addSchedule", row.sent]) : [])
                compare([schedules.entry.state, schedules.warning], [row.state || "", row.message || ""])
                verify(!row.at || field(row.at).field.activeFocus)
            }
            put({})
            press("Add")
            compare([schedules.entry.state, schedules.warning], ["", ""])
        }

        function test_typed() {
            mouseClick(field("Month day").field);
            [["5", Qt.Key_Tab], ["a,", Qt.Key_Backspace]].forEach(function (keys) {
                keys[0].split("").forEach(function (key) { keyClick(key) })
                compare(schedules.warning === "", keys[0] === "5")
                keyClick(keys[1])
                compare(schedules.warning, "")
            });
            ["2200", "0600"].forEach(function (digits) {
                keyClick(Qt.Key_Tab)
                digits.split("").forEach(function (key) { keyClick(key) })
            })
            keyClick(Qt.Key_Return)
            compare(JSON.parse(core.calls[0][1]),
                    { monthDay: 5, label: "a", pausable: false, startTime: "22:00", stopTime: "06:00" })
            verify(!field("Pause time").enabled && !field("Resume time").enabled)
        }

        function test_answered() {
            core.scheduleError("The experiment is too long.")
            compare(schedules.warning, "The experiment is too long.")
            core.scheduleOk()
            compare(schedules.warning, "")
            core.devName = "ZELK"
            core.scheduleError("The experiment is too long.")
            compare(schedules.warning, "")
        }

        function listed(count) {
            core.virtualSchedulelist = Array.from({ length: count }, function (_, i) {
                return { label: "L" + i, monthDay: i + 1, startTime: "08:00", pauseTime: "", resumeTime: "", stopTime: "17:00" }
            })
            core.scheduleListUpdate()
            waitForRendering(schedules)
        }

        function arrows() {
            return Items.all(schedules.table, function (item) { return /^[\u25b2\u25bc]$/.test(item.buttonLabel) })
                .map(function (item) { return item.buttonLabel }).join("")
        }

        function test_list() {
            listed(2)
            compare(Items.texts(schedules.table.list.view.itemAtIndex(1)), ["L1", "2", "08:00", "---", "---", "17:00", "Delete"])
            compare(arrows(), "")
            listed(10)
            compare(arrows(), "\u25bc")
            press("\u25bc")
            compare(arrows(), "\u25b2\u25bc")
            listed(9)
            listed(10)
            compare(arrows(), "\u25b2") // what was added is seen
            core.devName = "ZELK"
            listed(0)
            compare(schedules.table.list.count, 10)
        }

        function test_remove() {
            listed(3)
            press("Delete")
            schedules.table.list.view.forceActiveFocus()
            schedules.table.list.currentIndex = 2
            keyClick(Qt.Key_Delete)
            compare(core.calls, [["removeSchedule", 0], ["removeSchedule", 2]])
        }

        /// A list with a place missing would clear that place when it is written.
        function test_busyPlace() {
            made.configuration.close()
            core.meanwhile = function () {
                if (core.calls.length === 2)
                    core.deviceBusy()
            }
            made.configure()
            compare([core.calls.length, Dialogs.open(made.dialogs)], [2, "deviceBusyDialog"])
            verify(!made.configuration.visible)
        }

        function test_apply_data() {
            return [{ tag: "written", code: 0, dialog: "configSuccesfulDialog", calls: 1 },
                    { tag: "error", code: -1, dialog: "configErrorDialog", calls: 2 },
                    { tag: "busy", code: -2, dialog: "deviceBusyDialog", calls: 2 },
                    { tag: "disconnected", code: -3, dialog: "devDisconnectedDialog", calls: 1 }]
        }

        /// The box tells what is so afterwards; what was typed in its tab stays.
        function test_apply(row) {
            listed(2)
            settings.experimentDuration = "01:23"
            core.codes = { sndScheduleList: row.code }
            core.meanwhile = function () {
                if (core.calls.length === 2)
                    core.configurationUpdated()
            }
            press("Apply")
            compare(JSON.parse(core.calls[0][1]), { scheduleList: core.virtualSchedulelist })
            compare([core.calls.length, Dialogs.open(made.dialogs)], [row.calls, row.dialog])
            compare([settings.experimentDuration, settings.scheduleStatus], ["01:23", row.code === 0])
        }
    }
}
