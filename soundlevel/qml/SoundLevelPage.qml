// SPDX-License-Identifier: GPL-3.0-or-later
import QtQuick 2.15
import "../../qml/pages"

/// The page of a connected sound level meter: what is ticked is downloaded together.
VfInstrumentPage {
    severalAtOnce: true
    tellsFailedSaving: true
    experimentDelegate: VfListedExperiment {}
}
