// SPDX-License-Identifier: GPL-3.0-or-later
import QtQuick 2.15
import "../../qml/pages"

/// A measurement in the instrument's list, with a picture of what it was taken for.
VfListedExperiment {
    kind: ({ H: qsTr("Hand-arm"), B: qsTr("Whole body") })[modelData.type] || qsTr("Unknown application")
    picture: ({ H: "/hands.png", B: "/wholeBody.jpg" })[modelData.type] || ""
}
