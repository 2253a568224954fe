// SPDX-License-Identifier: GPL-3.0-or-later
import QtQuick 2.15
import "clock.js" as Clock

/// A field for a time of two numbers. What is not typed yet is blank, which makes it no time.
VfInputText {
    id: input

    property string form: "hh:mm"       ///< or "mm:ss"
    /// What is told of a text that is no such time.
    property string refusal
    /// The refusal while it is due, else "".
    readonly property string fault: Clock.isTime(text, form) ? "" : refusal

    fieldWidth: 90
    inputMask: "00:00"
    maximumLength: 5

    Connections {
        target: input.field
        // The next digit goes where the first one is missing, wherever the pointer came to; a whole time is typed over.
        function onActiveFocusChanged() { if (input.field.activeFocus) input.field.selectAll() }
        function onReleased() {
            var missing = input.field.displayText.indexOf(" ")
            if (input.field.selectedText !== "")
                return
            if (missing < 0)
                input.field.selectAll()
            else
                input.field.cursorPosition = missing
        }
    }
}
