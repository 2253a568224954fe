// SPDX-License-Identifier: GPL-3.0-or-later
import QtQuick 2.15
import QtQuick.Controls 1.4 as C1
import "."

/// A calendar in a window of its own; a click, a double click or Return takes the day.
VfWindow {
    id: window

    signal confirm(date date)

    function choose(date) {
        confirm(date)
        close()
    }

    /// Comes up with the month of date.
    function edit(date) {
        if (!isNaN(date))
            calendar.selectedDate = date
        present()
    }

    width: 250
    height: 250
    title: qsTr("Choose a date")

    C1.Calendar {
        id: calendar

        anchors.fill: parent
        focus: true
        onClicked: window.choose(date)
        onDoubleClicked: window.choose(date)
        Keys.onReturnPressed: window.choose(selectedDate)
    }
}
