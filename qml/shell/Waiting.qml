// SPDX-License-Identifier: GPL-3.0-or-later
import QtQuick 2.15
import QtQuick.Window 2.15

/// The one thing at a time that the suite waits for. From its beginning until input made meanwhile has come and gone
/// the pages are locked.
Item {
    id: waiting

    property bool busy: false
    /// What is happening, for the user.
    property string text

    property var job: null
    property var done: null
    property double begun: 0

    /// Runs job once what asked for it has let go of mouse and keys and the lock is painted, for a job pumps events;
    /// then done with what it gave. While another job runs nothing happens.
    function wait(what, newJob, newDone) {
        if (busy)
            return
        busy = true
        text = what
        job = newJob
        done = newDone
        begun = Date.now()
        start.start()
    }

    Timer {
        id: start

        interval: 20
        onTriggered: {
            try {
                var outcome = waiting.job()
            } finally {
                waiting.text = ""
                // The second press of a double click belongs to what was there when the first one began.
                release.interval = Math.max(50, begun + Qt.styleHints.mouseDoubleClickInterval - Date.now())
                release.start()
            }
            if (waiting.done && waiting.Window.window.visible) // a closed window has nobody to tell
                waiting.done(outcome)
        }
    }
    Timer {
        id: release

        onTriggered: waiting.busy = false
    }
}
