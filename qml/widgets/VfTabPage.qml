// SPDX-License-Identifier: GPL-3.0-or-later
import QtQuick 2.15
import QtQuick.Controls 2.15

/// A page of VfTabs, made when it is first looked at. While another is looked at it has neither pointer nor keyboard.
Loader {
    property string title       ///< markup
    /// Whether there is anything that it could show: without, its tab is not there.
    property bool present: true
    property bool stale: true

    active: false
    enabled: SwipeView.isCurrentItem
}
