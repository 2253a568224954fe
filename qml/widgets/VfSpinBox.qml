// SPDX-License-Identifier: GPL-3.0-or-later
import QtQuick 2.15
import QtQuick.Controls 2.15
import "."

/// A whole number that is stepped by its buttons or by Up, Down, Page Up and Page Down. One that is given beyond the range
/// is shown as it is and stays; the first step leads it into the range.
SpinBox {
    id: box

    property string name            ///< for those who cannot see what it is for
    property int least: 0
    property int most: 99
    /// The number given last.
    property int given: least

    function show(number) {
        given = number
        value = number
    }

    function step(by) {
        value += by
        valueModified()
    }

    from: Math.min(least, given)
    to: Math.max(most, given)
    implicitWidth: 120
    implicitHeight: Theme.controlHeight
    font { family: fontSans.name; pixelSize: Theme.fontSize }
    onValueModified: {
        value = Math.max(least, Math.min(most, value))
        given = value
    }
    Keys.onPressed: {
        if (event.key !== Qt.Key_PageUp && event.key !== Qt.Key_PageDown)
            return
        step(event.key === Qt.Key_PageUp ? 10 : -10)
        event.accepted = true
    }
    Accessible.role: Accessible.SpinBox
    Accessible.name: name + " " + value

    contentItem: VfText {
        text: box.value
        horizontalAlignment: Text.AlignHCenter
        verticalAlignment: Text.AlignVCenter
    }
    up.indicator: VfSpinButton { x: box.width - width; pressed: box.up.pressed; hovered: box.up.hovered; sign: "+" }
    down.indicator: VfSpinButton { pressed: box.down.pressed; hovered: box.down.hovered; sign: "\u2212" }
    background: Rectangle {
        border { width: box.activeFocus ? 2 : 1; color: box.activeFocus ? Theme.accent : Theme.fieldLine }
        color: Theme.ground
        radius: Theme.radius
    }
}
