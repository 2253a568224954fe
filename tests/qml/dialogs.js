// SPDX-License-Identifier: GPL-3.0-or-later
// Which of a page's messages a user sees.
.pragma library

var names = ["devDisconnectedDialog", "eraseFailDialog", "unsupportedDeviceDialog", "downloadFailDialog",
             "configErrorDialog", "configSuccesfulDialog", "eraseInProgressDialog", "eraseSuccessfulDialog",
             "deviceBusyDialog", "invalidFileDialog", "eraseDialog", "rcvCfgErrorDialog", "rcvSchedulListDialog",
             "printerErrorDialog"]

// The names of those that are open, in a line.
function open(dialogs) {
    return names.filter(function (name) { return dialogs[name].visible }).join(" ")
}

function closeAll(dialogs) {
    names.forEach(function (name) { dialogs[name].close() })
}
