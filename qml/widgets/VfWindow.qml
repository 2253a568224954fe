// SPDX-License-Identifier: GPL-3.0-or-later
import QtQuick 2.15
import QtQuick.Window 2.15
import "."

/// A window of fixed size in front of the program's main one: keeps the user to itself, stands in the middle of the
/// screen, and closes with Escape. Closing hides it.
Window {
    id: window

    /// Set while Escape does nothing.
    property bool locked: false

    function present() {
        showNormal()
        raise()
        requestActivate()
    }

    minimumWidth: width
    maximumWidth: width
    minimumHeight: height
    maximumHeight: height
    color: Theme.ground
    flags: Qt.Dialog
    modality: Qt.ApplicationModal
    onVisibleChanged: {
        if (!visible)
            return
        x = Screen.virtualX + (Screen.width - width) / 2
        y = Screen.virtualY + (Screen.height - height) / 2
    }

    Shortcut { sequence: StandardKey.Cancel; enabled: !window.locked; onActivated: window.close() }
}
