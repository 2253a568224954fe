// SPDX-License-Identifier: GPL-3.0-or-later
import QtQuick 2.15
import "../../qml/pages"

/// The units of an experiment. The records stay as they were parsed; a unit takes its values from its place in a record.
VfUnits {
    id: units

    /// The instrument has room for the main unit and three expansions.
    readonly property int mostUnits: 4
    property var experiment: null

    function show(parsed) {
        experiment = parsed
        present(Math.max(1, Math.min(mostUnits, (parsed.results || {}).numberOfExpansions + 1 || 1)))
    }

    function figures(unit) {
        var results = experiment.results || {}
        return Object.assign({ unity: results.unity, sampleTime: results.sampleTime },
                             (results.wbgtList || [])[unit], (results.maxMinTemperatures || [])[unit])
    }

    listName: qsTr("Units")
    nameOf: function (unit) { return unit === 0 ? qsTr("Main") : qsTr("Expansion") + " " + unit }
    view: Thalvex4ExperimentView { anchors.fill: parent }
    onFill: view.show(experiment, figures(unit), function (record) {
        return (record.enviromentalFactorsList || [])[unit] || {}
    })
}
