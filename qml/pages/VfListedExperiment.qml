// SPDX-License-Identifier: GPL-3.0-or-later
import QtQuick 2.15
import "../widgets"
import "../widgets/texts.js" as Texts

/// An experiment in an instrument's list; its name stands in front where the instrument keeps names.
VfExperimentItem {
    function dateText(date) {
        return isNaN(date) ? Texts.absent : date.toLocaleString(Qt.locale(), Locale.LongFormat)
    }

    text: modelData.index + ":"
    lines: (modelData.exp_Name === undefined ? [] : [{ text: modelData.exp_Name, width: kind ? 150 : 200 }]).concat(
        { text: qsTr("Date") + ": " + dateText(modelData.dateTime), width: 360 },
        { text: qsTr("Size") + ": " + modelData.size })
}
