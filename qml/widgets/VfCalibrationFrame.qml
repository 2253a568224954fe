// SPDX-License-Identifier: GPL-3.0-or-later
import QtQuick 2.15
import "."
import "texts.js" as Texts

/// The calibration record of the instrument: the number of its certificate and the date of the calibration.
VfFrame {
    id: frame

    property alias certificate: certificate.text
    property alias date: date.value
    property real labelWidth: 80
    /// Where the outcome is told.
    property VfDialogs dialogs

    /// Sends the record; gives the return code.
    function submitCalib() {
        var code = core.sndCalibration(JSON.stringify({ certification: certificate.text, date: date.value.toISOString() }))
        dialogs.answered(code, dialogs.configErrorDialog)
        return code
    }

    label: qsTr("Calibration")

    Column {
        spacing: Theme.gap

        VfInputText {
            id: certificate

            label: qsTr("Cal. cert.") + ":"
            labelWidth: frame.labelWidth
            maximumLength: 16
            placeholderText: Texts.absent
        }
        VfInputDate {
            id: date

            label: qsTr("Date") + ":"
            labelWidth: frame.labelWidth
        }
    }
}
