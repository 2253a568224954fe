// SPDX-License-Identifier: GPL-3.0-or-later
import QtQuick 2.15
import "../widgets"

/// The length of the working day that an exposure is computed for. "Apply" has the results computed for what is typed.
Column {
    id: hours

    readonly property alias text: field.text
    readonly property alias warning: warning.text
    readonly property string unchanged: qsTr("Nothing is computed for working hours of 00:00")
    property bool told: false

    /// The working hours that results were told with.
    function show(workingHours) {
        told = true
        field.text = workingHours || ""
        warning.text = field.text === "00:00" ? unchanged : ""
    }

    function apply() {
        warning.text = field.fault
        if (field.fault)
            return
        told = false
        core.refreshWorkingHours(JSON.stringify({ workingHours: field.text }))
        if (!told)
            warning.text = unchanged
        field.field.selectAll() // the next are typed over them
    }

    spacing: Theme.gap

    Row {
        spacing: Theme.gap

        VfClockField {
            id: field

            label: qsTr("Working hours") + " [hh:mm]"
            refusal: qsTr("Working hours field shall have hh:mm format")
            Keys.onReturnPressed: hours.apply()
            Keys.onEnterPressed: hours.apply()
        }
        MyButton { buttonLabel: qsTr("Apply"); onMyButtonclicked: hours.apply() }
    }
    VfText {
        id: warning

        width: parent.width
        color: Theme.warning
        visible: text !== ""
        wrapMode: Text.Wrap
        Accessible.role: Accessible.AlertMessage
        Accessible.name: text
    }
}
