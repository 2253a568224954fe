// SPDX-License-Identifier: GPL-3.0-or-later
import QtQuick 2.15
import "../../qml/widgets"
import "../../qml/widgets/texts.js" as Texts

/// A number of a hearing protector's assessment: a level, or what is typed, from -1000 to 1000. What is typed takes the
/// place of the old number altogether; a field that is left without a number keeps that.
VfTextField {
    id: field

    property real value: 0      ///< NaN for none

    function showValue() { text = isNaN(value) ? Texts.absent : root.numberToLocalString(value) }

    activeFocusOnTab: !readOnly
    horizontalAlignment: TextInput.AlignRight
    validator: RegExpValidator { regExp: /-?(1000([.,]0{0,2})?|\d{0,3}([.,]\d{0,2})?)/ }
    onTextEdited: {
        var typed = /\d/.test(text) ? Number(text.replace(",", ".")) : NaN
        if (!isNaN(typed))
            value = typed
    }
    onActiveFocusChanged: {
        if (readOnly)
            return
        if (activeFocus)
            clear()
        else
            showValue()
    }
    onValueChanged: if (!activeFocus) showValue()
    Component.onCompleted: showValue()
}
