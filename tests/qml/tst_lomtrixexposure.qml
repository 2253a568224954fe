// SPDX-License-Identifier: GPL-3.0-or-later
import QtQuick 2.15
import QtQuick.Window 2.15
import QtTest 1.15
import "qrc:/lomtrix/qml"
import "items.js" as Items

/// The times of exposure, given with the keyboard alone.
TestCase {
    id: testCase

    property var made: null
    readonly property SignalSpy shown: SignalSpy { signalName: "showTimeExp" }

    name: "exposure"
    when: windowShown
    visible: true
    width: 1260
    height: 670

    Component { id: pages; PageLomtrixExposureComponents {} }

    function init() {
        core.reset()
        core.devName = "LOMTRIX"
        made = createTemporaryObject(pages, testCase, { width: width, height: height })
        shown.target = made
        shown.clear()
        testCase.Window.window.requestActivate()
    }

    function components(count, change) {
        return Array.from({ length: count }, function (unused, i) {
            return Object.assign({ event: i + 3, label: "Saw <b>" + i, arep: "1.5", vdvX: "2", vdvY: "---", vdvZ: "4", cfX: "5",
                                   cfY: "6", cfZ: "7", hasDuration: true }, change ? change(i) : {})
        })
    }

    function show(list, product) {
        core.expCompList = list
        core.experiment = JSON.stringify({ deviceName: product || "LOMTRIX", logList: [] })
        core.experimentUpdated(-3)
        if (list.length > 0)
            made.edit(0)
    }

    function field() { return testCase.Window.window.activeFocusItem }
    function type(text) { text.split("").forEach(function (digit) { keyClick(digit) }) }
    function next() { return Items.first(made, "buttonLabel", "Next") }

    function test_foreign() {
        show(components(1), "NEMBRA")
        compare([shown.count, made.list.count], [0, 0])
    }

    function test_row() {
        show(components(2, function (i) { return { hasDuration: i > 0, label: i > 0 ? "" : "Saw <b>" } }))
        compare(shown.count, 1)
        compare(Items.texts(made.list.itemAtIndex(0)).slice(0, 9), ["3", "Saw <b>", "1.50", "2.00", "---", "4.00", "5.00", "6.00", "7.00"])
        verify(Items.texts(made.list.itemAtIndex(0)).indexOf("Duration unknown: not counted in the daily VDV") > 0)
        verify(Items.texts(made.list.itemAtIndex(1)).indexOf("---") === 1)
        verify(Items.texts(made.list.itemAtIndex(1)).indexOf("Duration unknown: not counted in the daily VDV") < 0)
        compare(Items.texts(made).slice(1, 11), ["Event", "Task name", "arep", "VDV<sub>ji(X)</sub>", "VDV<sub>ji(Y)</sub>",
                "VDV<sub>ji(Z)</sub>", "CF<sub>X</sub>", "CF<sub>Y</sub>", "CF<sub>Z</sub>", "Exposure time"])
    }

    /// Tab from field to field of more rows than fit, and from the last one to "Next", and back.
    function test_keyboardAlone_data() { return [{ tag: "one", count: 1 }, { tag: "sixty", count: 60 }] }
    function test_keyboardAlone(row) {
        show(components(row.count))
        for (var i = 0; i < row.count; ++i) {
            compare(made.list.currentIndex, i)
            var place = field().mapToItem(made.list, 0, 0)
            verify(place.y >= 0 && place.y + field().height <= made.list.height, "in sight")
            type("0" + i % 10 + "3" + i % 7)
            keyClick(Qt.Key_Tab)
        }
        tryCompare(next(), "activeFocus", true)
        keyClick(Qt.Key_Backtab)
        compare([made.list.currentIndex, field().text], [row.count - 1, "0" + (row.count - 1) % 10 + ":3" + (row.count - 1) % 7])
        keyClick(Qt.Key_Return)
        var sent = JSON.parse(core.calls[0][1])
        compare([core.calls[0][0], sent.length, sent[0]], ["refreshPartialResults", row.count, { event: 3, exposureTime: "00:30" }])
        compare(sent[row.count - 1], { event: row.count + 2, exposureTime: "0" + (row.count - 1) % 10 + ":3" + (row.count - 1) % 7 })
        for (i = 1; i < row.count; ++i)
            keyClick(Qt.Key_Backtab)
        compare([made.list.currentIndex, field().text], [0, "00:30"])
    }

    function test_refused_data() {
        return [{ tag: "a day", typed: "2400" }, { tag: "sixty minutes", typed: "0160" }, { tag: "a digit short", typed: "013" },
                { tag: "nothing", typed: "" }]
    }
    function test_refused(row) {
        show(components(30))
        made.components.forEach(function (component, i) { if (i !== 20) made.enterTime(i, "23:59") })
        made.edit(20)
        type(row.typed)
        made.edit(0)
        mouseClick(next())
        compare([made.warning, made.list.currentIndex, core.calls.length], ["Exposure time shall have hh:mm format", 20, 0])
        type("0000")
        keyClick(Qt.Key_Return)
        compare([made.warning, core.calls.length], ["", 1]);
        // The next chain begins anew, with fewer and with more of them.
        [2, 40].forEach(function (count) {
            show(components(count))
            compare([made.list.count, made.list.currentIndex, made.warning, field().text], [count, 0, "", ":"])
        })
    }

    /// What the instrument takes for one has one time.
    function test_equalEvents() {
        show(components(3, function (i) { return { event: i === 1 ? 4 : 3 } }))
        type("0130")
        compare(made.components.map(function (component) { return component.exposureTime }), ["01:30", "", "01:30"])
        made.edit(2)
        compare(field().text, "01:30")
    }
}
