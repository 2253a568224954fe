// SPDX-License-Identifier: GPL-3.0-or-later
import QtQuick 2.15
import "../../qml/widgets"
import "../../qml/widgets/texts.js" as Texts
import "zelk.js" as Zelk

/// One figure of every quantity: its lowest, its average or its highest value.
VfFigures {
    property var quantities: []
    property var values: []

    cellWidth: 220
    figures: quantities.map(function (quantity, place) {
        return { caption: Zelk.caption(quantity), value: Texts.numberText(values[place], root.numberToLocalString) }
    })
}
