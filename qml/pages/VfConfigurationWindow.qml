// SPDX-License-Identifier: GPL-3.0-or-later
import QtQuick 2.15
import "../widgets"

/// The base of the configuration windows that have no tabs; see VfConfigurationBody.
VfWindow {
    id: window

    property alias productName: body.productName
    property alias dialogs: body.dialogs
    property alias warning: body.warning
    default property alias frames: body.frames

    signal cfgOK(string cfg)

    function fill(configuration) {}
    function collected() { return null }
    function submitCfg() { body.submitCfg() }

    width: 600
    height: 340
    locked: root.busy

    VfConfigurationBody {
        id: body

        function fill(configuration) { window.fill(configuration) }
        function collected() { return window.collected() }

        anchors.fill: parent
        onCfgOK: window.cfgOK(cfg)
    }
}
