// SPDX-License-Identifier: GPL-3.0-or-later
import QtQuick 2.15
import "../../qml/widgets"
import "../../qml/widgets/texts.js" as Texts

/// An experiment of a heat-stress instrument; a family may put lines of its own in front.
VfExperimentItem {
    property var ownLines: []

    function dateText(date) {
        return isNaN(date) ? Texts.absent : date.toLocaleString(Qt.locale(), Locale.LongFormat)
    }

    text: modelData.index + ":"
    lines: ownLines.concat({ text: qsTr("Date") + ": " + dateText(modelData.dateTime), width: 360 },
                           { text: qsTr("Size") + ": " + modelData.size })
}
