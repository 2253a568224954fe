// SPDX-License-Identifier: GPL-3.0-or-later
pragma Singleton
import QtQuick 2.15

/// The suite's one visual language. Ground and text are both named, so that a dark desktop palette changes neither.
QtObject {
    readonly property color ground: "white"
    readonly property color quietGround: "#f4f4f4"  ///< heads, alternate rows, fields that cannot be changed
    readonly property color decisiveGround: "#ffeedd"   ///< below the figures that decide
    readonly property color line: "#c8c8c8"
    readonly property color fieldLine: "#a0a0a0"    ///< around what can be typed in or picked
    readonly property color text: "#202020"
    readonly property color quietText: "#606060"    ///< labels and hints
    readonly property color textOnDark: "white"
    readonly property color warning: "#c00000"

    readonly property color strip: "#ff9239"
    readonly property color accent: "steelblue"     ///< focus and selection
    readonly property color hover: "gray"           ///< list items below the pointer
    readonly property color button: "#505050"
    readonly property color buttonHover: "#707070"
    readonly property color buttonPressed: "#303030"
    readonly property color buttonDisabled: "#b0b0b0"

    readonly property int fontSize: 14
    readonly property int smallSize: 13
    readonly property int largeSize: 20
    readonly property int decisiveSize: 36

    readonly property int margin: 24                ///< between a page's edge and its content
    readonly property int spacing: 16               ///< between groups
    readonly property int gap: 8                    ///< inside a group
    readonly property int pageTop: 72               ///< where content begins, below title and logo
    readonly property int controlHeight: 32
    readonly property int radius: 3
    readonly property int barWidth: 12              ///< of the bars of a table
}
