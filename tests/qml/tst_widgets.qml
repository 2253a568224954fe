// SPDX-License-Identifier: GPL-3.0-or-later
import QtQuick 2.15
import QtQuick.Window 2.15
import QtTest 1.15
import "../../qml/widgets"
import "qrc:/qml/widgets"
import "qrc:/qml/charts"
import "qrc:/qml/pages"
import "qrc:/qml/shell"
import "qrc:/qml/shell/local.js" as Local
import "dialogs.js" as Dialogs
import "items.js" as Items

/// Dates, numbers and the widgets that no page of a heat-stress meter shows.
Item {
    width: 800
    height: 600

    VfDialogs { id: messages }
    VfCalibrationFrame { id: calibration; dialogs: messages; width: 500 }

    VfList {
        id: ticks

        property var clicked: []

        y: 200
        width: 400
        height: 300
        model: [{ name: "one" }, { name: "two" }]
        checkable: true
        delegate: VfExperimentItem { text: modelData.name }
        onListClicked: { clicked = clicked.concat(indexItem); picked = [1] }
    }

    VfWorkingHours { id: hours; y: 520 }
    VfSpinBox { id: level; x: 500; y: 400; least: 80; most: 90 }

    TestCase {
        id: testCase

        name: "widgets"
        when: windowShown
        visible: true
        width: 800
        height: 600

        function init() { core.reset() }
        function cleanup() { Dialogs.closeAll(messages) }

        function test_dateTime_data() {
            return [{ tag: "behind", text: "21/03/05,14:30:00-12", utc: "2021-03-05T17:30:00.000Z" },
                    { tag: "ahead", text: "21/03/05,00:30:00+04", utc: "2021-03-04T23:30:00.000Z" },
                    { tag: "half an hour", text: "21/03/05,14:30:00-10", utc: "2021-03-05T17:00:00.000Z" },
                    { tag: "three quarters", text: "21/03/05,14:30:00+23", utc: "2021-03-05T08:45:00.000Z" },
                    { tag: "less than an hour", text: "21/03/05,14:30:00-02", utc: "2021-03-05T15:00:00.000Z" },
                    { tag: "widest", text: "21/03/05,14:30:00+56", utc: "2021-03-05T00:30:00.000Z" },
                    { tag: "leap day", text: "24/02/29,23:59:59+00", utc: "2024-02-29T23:59:59.000Z" },
                    { tag: "month 13", text: "21/13/05,14:30:00-12" },
                    { tag: "no zone", text: "21/03/05,14:30:00" },
                    { tag: "zone alone", text: "+00" },
                    { tag: "words", text: "yesterday" }]
        }

        function test_dateTime(row) {
            var date = Local.dateTime(row.text)
            if (row.utc === undefined)
                verify(isNaN(date))
            else
                compare(date.toISOString(), row.utc)
        }

        function test_emptyDateTime() { compare(Local.dateTime(""), "") }

        function test_numberText_data() {
            return [{ tag: "text", num: "1234.5", point: "1,234.50", comma: "1.234,50" },
                    { tag: "rounded", num: 0.125, point: "0.13", comma: "0,13" },
                    { tag: "negative", num: -7, point: "-7.00", comma: "-7,00" },
                    { tag: "no number", num: "LOW", point: "LOW", comma: "LOW" }]
        }

        function test_numberText(row) {
            compare(Local.numberText(row.num, Qt.locale("en_US")), row.point)
            compare(Local.numberText(row.num, Qt.locale("pt_BR")), row.comma)
        }

        function test_calibration_data() {
            return [{ tag: "taken", code: 0, dialog: "" },
                    { tag: "error", code: -1, dialog: "configErrorDialog" },
                    { tag: "busy", code: -2, dialog: "deviceBusyDialog" },
                    { tag: "disconnected", code: -3, dialog: "devDisconnectedDialog" }]
        }

        function test_calibration(row) {
            core.codes = { sndCalibration: row.code }
            calibration.certificate = "0123456789ABCDEFG"
            calibration.date = new Date(Date.UTC(2021, 2, 5, 12))
            compare(calibration.submitCalib(), row.code)
            compare(core.calls.map(function (call) { return [call[0], JSON.parse(call[1])] }),
                    [["sndCalibration", { certification: "0123456789ABCDEF", date: "2021-03-05T12:00:00.000Z" }]])
            compare(Dialogs.open(messages), row.dialog)
        }

        function test_calendar() {
            calibration.date = new Date(2021, 2, 5, 12)
            verify(Items.first(calibration, "text", calibration.date.toLocaleDateString(Qt.locale(), Locale.ShortFormat)))
            var input = Items.all(calibration, function (item) { return item.edit !== undefined })[0]
            input.edit()
            var calendar = input.calendar
            verify(calendar.visible)
            compare([calendar.width, calendar.height], [250, 250])
            calendar.choose(new Date(2022, 0, 31))
            verify(!calendar.visible)
            compare(calibration.date.getTime(), new Date(2022, 0, 31).getTime())
        }

        /// Typed with the keyboard alone, over what stood there.
        function test_workingHours_data() {
            var form = "Working hours field shall have hh:mm format"
            return [{ tag: "longest", typed: "2359", text: "23:59", sent: "23:59", told: true, warning: "" },
                    { tag: "a day", typed: "2400", text: "24:00", warning: form },
                    { tag: "sixty minutes", typed: "0760", text: "07:60", warning: form },
                    { tag: "a digit short", typed: "7", text: "7:", warning: form },
                    { tag: "nothing", typed: "", text: ":", warning: form },
                    { tag: "of no length", typed: "0000", text: "00:00", sent: "00:00",
                      warning: "Nothing is computed for working hours of 00:00" }]
        }
        function test_workingHours(row) {
            testCase.Window.window.requestActivate()
            hours.show(row.typed ? "08:00" : "")
            core.meanwhile = function () { if (row.told) hours.show(row.sent) }
            var field = Items.all(hours, function (item) { return item.inputMask !== undefined && item.selectByMouse })[0]
            field.focus = false
            mouseClick(field, field.width - 4, field.height / 2)
            tryVerify(function () { return field.activeFocus })
            row.typed.split("").forEach(function (digit) { keyClick(digit) })
            compare(field.text, row.text)
            keyClick(Qt.Key_Return)
            compare(core.calls, row.sent ? [["refreshWorkingHours", "{\"workingHours\":\"" + row.sent + "\"}"]] : [])
            compare(hours.warning, row.warning)
            hours.show("07:30")
            compare([field.text, hours.warning], ["07:30", ""])
        }

        function test_spin_data() {
            return [{ tag: "up", shown: 85, key: Qt.Key_Up, value: 86 }, { tag: "page up", shown: 85, key: Qt.Key_PageUp, value: 90 },
                    { tag: "at the end", shown: 80, key: Qt.Key_Down, value: 80 },
                    { tag: "above, down", shown: 140, key: Qt.Key_Down, value: 90 },
                    { tag: "above, up", shown: 140, key: Qt.Key_Up, value: 140 },
                    { tag: "below, page up", shown: -3, key: Qt.Key_PageUp, value: 80 }]
        }

        /// Beyond its range it shows what it was given; the first step leads into the range for good.
        function test_spin(row) {
            level.show(row.shown)
            level.Window.window.requestActivate()
            level.forceActiveFocus()
            tryVerify(function () { return level.Window.window.active && level.activeFocus })
            compare([level.value, level.contentItem.text], [row.shown, String(row.shown)])
            keyClick(row.key)
            tryCompare(level, "value", row.value)
            compare([level.value, level.contentItem.text], [row.value, String(row.value)])
            if (row.value !== row.shown)
                compare([level.from, level.to], [80, 90])
        }

        function test_ticks() {
            tryVerify(function () { return ticks.view.itemAtIndex(1) })
            mouseClick(ticks.view.itemAtIndex(1))
            mouseClick(ticks.view.itemAtIndex(0))
            mouseClick(ticks.view.itemAtIndex(0))
            compare(ticks.clicked, [1, 0, 0])
            compare([ticks.view.itemAtIndex(0).checked, ticks.view.itemAtIndex(1).checked], [false, true])
        }
    }
}
