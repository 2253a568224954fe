// SPDX-License-Identifier: GPL-3.0-or-later
import QtQuick 2.15
import "../widgets"

/// The frame of the time between two samples, which most instruments let set.
VfFrame {
    property alias text: field.text
    readonly property alias fault: field.fault

    /// Shows a time that was read. The field would make another one of a hundred minutes and more: it stays empty then.
    function show(time) {
        var fits = time.length <= field.maximumLength
        field.text = fits ? time : ""
        beyond.text = fits ? "" : qsTr("Set in the instrument") + ": " + time
    }

    onFaultChanged: if (!fault) beyond.text = ""

    Column {
        spacing: Theme.gap

        VfClockField {
            id: field

            form: "mm:ss"
            description: qsTr("Sample time")
            refusal: qsTr("The sample time field shall have mm:ss format")
        }
        VfText { id: beyond; visible: text !== "" }
    }
}
