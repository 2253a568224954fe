// SPDX-License-Identifier: GPL-3.0-or-later
import QtQuick 2.15
import "../../qml/pages"

VfInstrumentPage {
    id: page

    /// Writes the schedules, which switches them on; where that fails half way they may be left off.
    function sendSchedules(sch) {
        send(qsTr("Changing the schedules") + "...", function () { return core.sndScheduleList(sch) },
             function () { configuration.settings.scheduleStatus = true })
    }

    pageTitle: qsTr("Ardel 2")
    productName: "ARDEL 2"
    fileFilter: "(*.adl)"
    experimentDelegate: Ardel2ExperimentItem {}
    configurationWindow: Ardel2Configuration { onScheduleListOK: page.sendSchedules(sch) }
    readings: [
        { read: core.acquireConfiguration, failed: dialogs.rcvCfgErrorDialog },
        { read: core.acquireScheduleList, failed: dialogs.rcvSchedulListDialog }
    ]
}
