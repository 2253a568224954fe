// SPDX-License-Identifier: GPL-3.0-or-later
import QtQuick 2.15
import "../widgets"

/// Asks before files that exist are replaced.
VfQuestion {
    id: question

    property var goOn: null
    property var goBack: null

    /// Runs newGoOn at once when none of files exists, otherwise when the user agrees; newGoBack when not. The dialog
    /// that gave the name asked has asked about that file itself. asking is the window in front.
    function ask(files, asked, newGoOn, newGoBack, asking) {
        var existing = root.outputs ? root.outputs.existing(files, asked) : []
        if (existing.length === 0) {
            newGoOn()
            return
        }
        text = qsTr("What is in these files will be lost") + ":\n\n" + existing.join("\n") + "\n\n" + qsTr("Continue?")
        goOn = newGoOn
        goBack = newGoBack
        open(asking)
    }

    title: qsTr("Replace?")
    onYes: goOn()
    onNo: if (goBack) goBack()
}
