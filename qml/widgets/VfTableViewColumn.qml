// SPDX-License-Identifier: GPL-3.0-or-later
import QtQuick 2.15
import QtQuick.Controls 1.4 as C1

C1.TableViewColumn {
    horizontalAlignment: Text.AlignHCenter
    movable: false
    resizable: false
}
