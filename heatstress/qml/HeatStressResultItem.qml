// SPDX-License-Identifier: GPL-3.0-or-later
import QtQuick 2.15
import "../../qml/widgets"
import "../../qml/widgets/texts.js" as Texts

/// A box of the figures that the instrument computed of one quantity. A line that the quantity does not have is hidden.
VfFigures {
    /// {label, figures, and the keys of the figures: maximum, average, minimum; whether it is what decides}.
    property var quantity: modelData
    readonly property string unit: " [" + Texts.shown(quantity.figures.unity, 12) + "]:"

    label: quantity.label
    color: quantity.decides ? Theme.decisiveGround : Theme.ground
    cellWidth: implicitWidth - 2 * padding
    implicitWidth: quantity.decides ? 190 : 150
    height: 140
    valueSize: quantity.decides ? Theme.decisiveSize : Theme.largeSize
    figures: [
        { caption: qsTr("Max"), key: quantity.maximum },
        { caption: qsTr("Avg"), key: quantity.average },
        { caption: qsTr("Min"), key: quantity.minimum }
    ].filter(function (line) { return line.key !== undefined }).map(function (line) {
        return { caption: line.caption + unit, value: Texts.numberText(quantity.figures[line.key], root.numberToLocalString) }
    })
}
