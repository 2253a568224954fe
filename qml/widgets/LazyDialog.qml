// SPDX-License-Identifier: GPL-3.0-or-later
import QtQuick 2.15

/// A dialog that is made when it is first opened.
Loader {
    function open() {
        active = true
        item.open()
    }

    active: false
}
