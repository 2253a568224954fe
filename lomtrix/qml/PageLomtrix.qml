// SPDX-License-Identifier: GPL-3.0-or-later
import QtQuick 2.15
import "../../qml/pages"

/// What is ticked is downloaded together and makes up one working day, so it has to be of one application.
VfInstrumentPage {
    pageTitle: qsTr("Lomtrix")
    productName: "LOMTRIX"
    fileFilter: "(*.lmt)"
    severalAtOnce: true
    oneType: true
    tellsFailedSaving: true
    experimentDelegate: LomtrixExperimentItem {}
    configurationWindow: LomtrixConfiguration {}
}
