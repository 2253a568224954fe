// SPDX-License-Identifier: GPL-3.0-or-later
import QtQuick 2.15
import "../../qml/pages"
import "zelk.js" as Zelk

/// An experiment in the logger's list with a picture of its kind of sensor.
VfListedExperiment {
    kind: (modelData.type === "GAS" ? modelData.subType : modelData.type) || ""
    picture: Zelk.picture(kind)
}
