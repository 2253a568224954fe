// SPDX-License-Identifier: GPL-3.0-or-later
import QtQuick 2.15
import QtQuick.Window 2.15
import QtTest 1.15
import "items.js" as Items

/// Tests of a results page, made anew for each of them.
TestCase {
    id: testCase

    /// The ResultsPageCase with the page, an experiment and the way to its view.
    property var family
    property var made: null
    readonly property SignalSpy shown: SignalSpy { signalName: "showResults" }

    when: windowShown
    visible: true
    width: family.width
    height: family.height

    function init() {
        core.reset()
        made = createTemporaryObject(family.page, testCase, { width: width, height: height })
        verify(made)
        shown.target = made
        shown.clear()
    }

    function show(position, change) {
        var experiment = family.experiment()
        if (change)
            change(experiment)
        core.experiment = JSON.stringify(experiment)
        family.announce(position === undefined ? -3 : position)
    }

    function view() { return family.viewOf(made) }

    /// Items are where a user sees them once a frame was drawn.
    function drawn(item) {
        item.Window.window.requestUpdate()
        waitForRendering(item)
    }

    function clickOn(property, value, where) {
        var item = Items.first(where || made, property, value)
        verify(item, value)
        drawn(item)
        mouseClick(item)
    }

    /// What is told to those who listen.
    function told(item) {
        return Items.all(item, function (part) { return part.tell && part.activeFocus })
            .map(function (part) { return part.Accessible.name }).join()
    }
}
