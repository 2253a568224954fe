// SPDX-License-Identifier: GPL-3.0-or-later
import QtQuick 2.15
import QtQuick.Controls 2.15
import "."

/// A note below the pointer, in the suite's look; its text is never markup.
ToolTip {
    id: tip

    delay: 600
    x: parent ? (parent.width - width) / 2 : 0
    // Controls fill what the width leaves, so the words are measured apart.
    width: Math.min(words.implicitWidth + leftPadding + rightPadding + 1, 640)
    padding: Theme.gap

    contentItem: VfText {
        color: Theme.text
        font.pixelSize: Theme.smallSize
        text: tip.text
        wrapMode: Text.Wrap
    }
    background: MyRec { color: Theme.quietGround }

    VfText { id: words; font.pixelSize: Theme.smallSize; text: tip.text; visible: false }
}
