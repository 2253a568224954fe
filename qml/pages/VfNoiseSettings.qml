// SPDX-License-Identifier: GPL-3.0-or-later
import QtQuick 2.15
import "../widgets"

/// What can be set on every noise instrument: its weightings and its octave analysis.
Row {
    id: settings

    /// What stands behind the name of each weighting.
    property string mark: ""
    /// The radio groups by the key of what they set.
    readonly property var groups: ({ timeWeighting: timeWeighting, frequencyWeighting: frequencyWeighting,
                                     octaveAnalysis: octaveAnalysis })

    function fill(configuration) {
        for (var key in groups)
            groups[key].value = configuration[key] || ""
    }

    height: 160
    spacing: Theme.spacing

    VfFrame {
        width: 2 * (parent.width - parent.spacing) / 3
        height: parent.height
        label: qsTr("Weighting") + " *"

        Row {
            spacing: 60

            Column {
                spacing: Theme.gap
                VfText { color: Theme.quietText; text: qsTr("Time") + settings.mark }
                VfRadioGroup {
                    id: timeWeighting

                    name: qsTr("Time")
                    choices: ["Fast", "Slow", "Impulse"]
                    texts: [qsTr("Fast"), qsTr("Slow"), qsTr("Impulse")]
                }
            }
            Column {
                spacing: Theme.gap
                VfText { color: Theme.quietText; text: qsTr("Frequency") + settings.mark }
                VfRadioGroup { id: frequencyWeighting; name: qsTr("Frequency"); choices: ["A", "C", "Z"] }
            }
        }
    }

    VfFrame {
        width: (parent.width - parent.spacing) / 3
        height: parent.height
        enabled: octaveAnalysis.isChosen // an instrument without octave filters tells of another analysis
        label: qsTr("Octave analysis") + " *"
        opacity: enabled ? 1 : 0.5

        VfRadioGroup { id: octaveAnalysis; name: qsTr("Octave analysis"); choices: ["1/1", "1/3"] }
    }
}
