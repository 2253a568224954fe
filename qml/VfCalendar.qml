// SPDX-License-Identifier: GPL-3.0-or-later
import QtQuick 2.15
import QtQuick.Controls 1.4 as C1
import QtQuick.Window 2.15
import "."

/// A calendar in a window of its own; a click, a double click or Return takes the day.
Window {
    id: window

    signal confirm(date date)

    function choose(date) {
        confirm(date)
        close()
    }

    /// Comes up with the month of date.
    function show(date) {
        if (!isNaN(date))
            calendar.selectedDate = date
        showNormal()
        raise()
        requestActivate()
    }

    width: 250
    height: 250
    minimumWidth: width
    maximumWidth: width
    minimumHeight: height
    maximumHeight: height
    color: Theme.ground
    flags: Qt.Dialog
    modality: Qt.ApplicationModal
    title: qsTr("Choose a date")

    Shortcut { sequence: StandardKey.Cancel; onActivated: window.close() }

    C1.Calendar {
        id: calendar

        anchors.fill: parent
        focus: true
        onClicked: window.choose(date)
        onDoubleClicked: window.choose(date)
        Keys.onReturnPressed: window.choose(selectedDate)
    }
}
