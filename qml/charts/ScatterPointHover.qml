// SPDX-License-Identifier: GPL-3.0-or-later
import QtQuick 2.15
import "../widgets"

/// The mark on the point of a chart that is pointed at.
Rectangle {
    width: 10
    height: 10
    radius: 2
    color: "transparent"
    border { width: 2; color: Theme.text }
    visible: false
}
