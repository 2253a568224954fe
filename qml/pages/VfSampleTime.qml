// SPDX-License-Identifier: GPL-3.0-or-later
import QtQuick 2.15
import "../widgets"

/// The frame of the time between two samples, which most instruments let set.
VfFrame {
    property alias text: field.text
    readonly property alias fault: field.fault

    VfClockField {
        id: field

        form: "mm:ss"
        description: qsTr("Sample time")
        refusal: qsTr("The sample time field shall have mm:ss format")
    }
}
