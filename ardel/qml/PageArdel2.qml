// SPDX-License-Identifier: GPL-3.0-or-later
import QtQuick 2.15
import "../../qml/pages"

VfInstrumentPage {
    id: page

    /// Whether a place of the schedules answered that the instrument cannot tell it now.
    property bool heardBusy: false

    /// Reads the schedules. A busy place is passed over: the list is not whole then, and written back it would clear it.
    function readSchedules() {
        heardBusy = false
        var code = core.acquireScheduleList()
        return code === root.deviceSuccessful && heardBusy ? root.deviceBusy : code
    }

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
        { read: readSchedules, failed: dialogs.rcvSchedulListDialog }
    ]

    Connections {
        target: core
        function onDeviceBusy() { page.heardBusy = true }
    }
}
