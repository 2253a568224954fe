// SPDX-License-Identifier: GPL-3.0-or-later
import QtQuick 2.15

/// What the pages see of the controller: it remembers what it was asked and answers with the codes set before.
QtObject {
    property string experiment
    property string devName
    property var device: ({ SN: "TX/0042" })
    property string configuration
    property var deviceList: []
    property var experimentList: []
    property var virtualSchedulelist: []
    property var expCompList: []
    readonly property string version: "1.0"
    readonly property string builtDate: "Oct  9 2019 - 09:37:01"
    readonly property string builtYear: "2019"
    readonly property string revision: "716"
    /// The calls in order, each the name and the arguments, and the code for a name (0 unless set).
    property var calls: []
    property var codes: ({})
    /// What happens while a call waits.
    property var meanwhile: null

    signal experimentUpdated(int position)
    signal resultsUpdated(int position)
    signal configurationUpdated()
    signal progressBarUpdated(double progress)
    signal eraseStarted()
    signal scheduleListUpdate()
    signal scheduleOk()
    signal scheduleError(string message)
    signal deviceBusy()
    signal deviceDisconnected()
    signal unsupportedDevice()
    signal findDeviceFinished()
    signal findingDevices(double progress)
    signal fileReadStarted()
    signal fileReadFinished()
    signal invalidFile()

    function reset() {
        experiment = ""
        devName = ""
        configuration = ""
        deviceList = []
        experimentList = []
        virtualSchedulelist = []
        expCompList = []
        calls = []
        codes = {}
        meanwhile = null
    }

    function called(name, argument) {
        calls = calls.concat([argument === undefined ? [name] : [name, argument]])
        if (meanwhile)
            meanwhile()
        return codes[name] || 0
    }

    function nextExp() { called("nextExp") }
    function prevExp() { called("prevExp") }
    function generateReport(cfg) { return called("generateReport", cfg) }
    function refreshPartialResults(list) { called("refreshPartialResults", list) }
    function refreshWorkingHours(hours) { called("refreshWorkingHours", hours) }
    function refreshGeneralData(data) { called("refreshGeneralData", data) }
    function acquireConfiguration() { return called("acquireConfiguration") }
    function sndConfiguration(cfg) { return called("sndConfiguration", cfg) }
    function acquireScheduleList() { return called("acquireScheduleList") }
    function sndScheduleList(sch) { return called("sndScheduleList", sch) }
    function addSchedule(schedule) { called("addSchedule", schedule) }
    function removeSchedule(index) { called("removeSchedule", index) }
    function createExperiment(list) { return called("createExperiment", list) }
    function saveExperimentToFile(name) { return called("saveExperimentToFile", String(name)) }
    function sndCalibration(calib) { return called("sndCalibration", calib) }
    function eraseMemory() { return called("eraseMemory") }
    function createDevice(index) { return called("createDevice", index) }
    function setTimeNow() { return called("setTimeNow") }
    function findExperiments() { return called("findExperiments") }
    function findDevices() { called("findDevices") }
    function parseFile(name) { called("parseFile", String(name)) }
}
