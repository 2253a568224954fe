// SPDX-License-Identifier: GPL-3.0-or-later
import QtQuick 2.15
import "../../qml/widgets"
import "../../qml/widgets/texts.js" as Texts

/// A box of the figures that the instrument computed of one quantity. A line that the quantity does not have is hidden.
VfFrame {
    id: item

    /// {label, figures, and the keys of the figures: maximum, average, minimum; whether it is what decides}.
    property var quantity: modelData

    function figure(line) { return Texts.numberText(quantity.figures[quantity[line]], root.numberToLocalString) }

    label: quantity.label
    color: quantity.decides ? Theme.decisiveGround : Theme.ground
    implicitWidth: quantity.decides ? 190 : 150
    height: 140

    Column {
        spacing: 12

        Repeater {
            model: [{ label: qsTr("Max"), line: "maximum" }, { label: qsTr("Avg"), line: "average" },
                    { label: qsTr("Min"), line: "minimum" }]
            Column {
                visible: item.quantity[modelData.line] !== undefined
                spacing: 2
                VfElidedText {
                    width: item.width - 2 * item.padding
                    color: Theme.quietText
                    whole: modelData.label + " [" + Texts.shown(item.quantity.figures.unity, 12) + "]:"
                }
                VfElidedText {
                    width: item.width - 2 * item.padding
                    whole: item.figure(modelData.line)
                    font { pixelSize: item.quantity.decides ? Theme.decisiveSize : Theme.largeSize; bold: true }
                }
            }
        }
    }
}
