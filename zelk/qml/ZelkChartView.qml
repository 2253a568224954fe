// SPDX-License-Identifier: GPL-3.0-or-later
import QtQuick 2.15
import "../../qml/pages"
import "zelk.js" as Zelk

/// A chart for each quantity, and beside it the list of their names.
VfUnits {
    property var experiment: null
    property var quantities: []
    readonly property var names: Zelk.names(quantities)

    function show(parsed, measured) {
        experiment = parsed
        quantities = measured
        present(measured.length)
    }

    listName: qsTr("Quantities")
    nameOf: function (place) { return names[place] || "" }
    view: ZelkGenericChart { anchors.fill: parent }
    onFill: view.show(experiment, quantities[unit], unit)
}
