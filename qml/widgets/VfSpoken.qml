// SPDX-License-Identifier: GPL-3.0-or-later
import QtQuick 2.15

/// Says a text to those who listen whenever it changes while it is active, inside a focus scope that is told by it. A
/// screen reader tells what gets the keyboard, so two invisible items hand it to each other.
Item {
    id: spoken

    property string text
    property bool active: false
    /// Who gets the keys, unless that is around the text.
    property list<Item> keysTo
    property int turn: 0

    function say() {
        var last = voices.itemAt(turn)
        if (!active || text === "" || (last.activeFocus && last.Accessible.name === text))
            return
        turn = 1 - turn
        voices.itemAt(turn).tell()
    }

    onTextChanged: say()
    onActiveChanged: Qt.callLater(say) // after the name of what it speaks for

    Repeater {
        id: voices

        model: 2
        Item {
            function tell() {
                Accessible.name = spoken.text
                forceActiveFocus()
            }

            width: 1
            height: 1
            Accessible.role: Accessible.StaticText
            Accessible.focusable: true
            Accessible.ignored: !spoken.active || spoken.turn !== index
            Keys.forwardTo: spoken.keysTo
        }
    }
}
