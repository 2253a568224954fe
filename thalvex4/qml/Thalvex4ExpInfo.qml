// SPDX-License-Identifier: GPL-3.0-or-later
import QtQuick 2.15
import "../../heatstress/qml"

HeatStressExpInfo {
    ownLines: [{ label: qsTr("Experiment"), value: experiment.expName }]
}
