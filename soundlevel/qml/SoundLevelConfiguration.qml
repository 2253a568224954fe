// SPDX-License-Identifier: GPL-3.0-or-later
import QtQuick 2.15
import "../../qml/widgets"
import "../../qml/pages"

/// What can be set on a sound level meter: its weightings and its octave analysis.
VfConfigurationWindow {
    id: window

    readonly property var groups: ({ timeWeighting: timeWeighting, frequencyWeighting: frequencyWeighting,
                                     octaveAnalysis: octaveAnalysis })

    function fill(configuration) {
        for (var key in groups)
            groups[key].value = configuration[key] || ""
    }

    function collected() {
        var configuration = {}
        for (var key in groups)
            if (groups[key].isChosen)
                configuration[key] = groups[key].value
        return configuration
    }

    VfFrame {
        width: 2 * (parent.width - parent.spacing) / 3
        height: 160
        label: qsTr("Weighting") + " *"

        Row {
            spacing: 60

            Column {
                spacing: Theme.gap
                VfText { color: Theme.quietText; text: qsTr("Time") }
                VfRadioGroup {
                    id: timeWeighting

                    name: qsTr("Time")
                    choices: ["Fast", "Slow", "Impulse"]
                    texts: [qsTr("Fast"), qsTr("Slow"), qsTr("Impulse")]
                }
            }
            Column {
                spacing: Theme.gap
                VfText { color: Theme.quietText; text: qsTr("Frequency") }
                VfRadioGroup { id: frequencyWeighting; name: qsTr("Frequency"); choices: ["A", "C", "Z"] }
            }
        }
    }

    VfFrame {
        width: (parent.width - parent.spacing) / 3
        height: 160
        label: qsTr("Octave analysis") + " *"

        VfRadioGroup {
            id: octaveAnalysis

            enabled: isChosen // an instrument without octave filters tells of another analysis
            name: qsTr("Octave analysis")
            choices: ["1/1", "1/3"]
            opacity: enabled ? 1 : 0.5
        }
    }
}
