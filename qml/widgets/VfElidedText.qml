// SPDX-License-Identifier: GPL-3.0-or-later
import QtQuick 2.15
import "."
import "texts.js" as Texts

/// A text from outside in whatever room there is; what does not fit is told when the pointer rests on it.
VfText {
    id: elided

    property string whole

    elide: Text.ElideRight
    text: Texts.shown(whole)

    HoverHandler { id: hover }

    Loader {
        active: hover.hovered && (elided.truncated || elided.text !== elided.whole)
        sourceComponent: VfToolTip {
            parent: elided
            text: Texts.shown(elided.whole, 1000)
            visible: true
            y: elided.height + 4
        }
    }
}
