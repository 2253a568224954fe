// SPDX-License-Identifier: GPL-3.0-or-later
import QtQuick 2.15
import "qrc:/qml/shell/local.js" as Local

/// What the pages see of the shell: codes, numbers and dates.
QtObject {
    readonly property int deviceDisconnected: -3
    readonly property int deviceBusy: -2
    readonly property int deviceError: -1
    readonly property int deviceSuccessful: 0
    readonly property int expEmptyList: -4
    readonly property int expUniqueItem: -3
    readonly property int expFirstItem: -2
    readonly property int expLastItem: -1
    readonly property int expMiddleItem: 0

    readonly property bool busy: false
    readonly property string busyText: ""
    property string unsaved
    /// Remembers the proposal; the files of present exist.
    readonly property QtObject outputs: QtObject {
        property var present: []
        property string proposal

        function ofExperiment(product, fileName) { return String(fileName) + ".ending" }
        function ofReport(product, json) { return [JSON.parse(json).fileName, "beside.csv"] }
        function existing(files, asked) {
            return files.filter(function (file) { return file !== String(asked) && present.indexOf(file) >= 0 })
        }
        function propose(name) { proposal = name }
    }

    function wait(what, job, done) { done(job()) }
    function numberToLocalString(num) { return Local.numberText(num, Qt.locale()) }
    function convertDateTimeATToLocalTimeString(date) { return Local.dateTime(date) }
    function leftPad(number, targetLength) { return Local.leftPad(number, targetLength) }
}
