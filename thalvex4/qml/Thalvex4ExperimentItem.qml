// SPDX-License-Identifier: GPL-3.0-or-later
import "../../heatstress/qml"

HeatStressExperimentItem {
    ownLines: modelData.exp_Name === undefined ? [] : [{ text: modelData.exp_Name, width: 200 }]
}
