// SPDX-License-Identifier: GPL-3.0-or-later
import QtQuick 2.15
import "."
import "texts.js" as Texts

/// A framed group of figures, each below its caption.
VfFrame {
    id: frame

    /// [{caption, symbol, value}]: a symbol is a caption that is markup.
    property var figures: []
    property int columns: 1
    property real columnSpacing: Theme.gap
    property int valueSize: Theme.largeSize
    /// What a caption and a value may take; of texts that do not fit the rest is told to a pointer that rests on them.
    property real cellWidth: 84

    Grid {
        columns: frame.columns
        columnSpacing: frame.columnSpacing
        rowSpacing: 12

        Repeater {
            model: frame.figures
            Column {
                spacing: 2
                Accessible.role: Accessible.StaticText
                Accessible.name: (modelData.caption || Texts.plain(modelData.symbol)) + " " + modelData.value
                VfElidedText {
                    width: frame.cellWidth
                    color: Theme.quietText
                    visible: modelData.caption !== undefined
                    whole: modelData.caption || ""
                }
                VfText {
                    color: Theme.quietText
                    text: modelData.symbol || ""
                    textFormat: Text.RichText
                    visible: modelData.symbol !== undefined
                }
                VfElidedText {
                    width: frame.cellWidth
                    font { pixelSize: frame.valueSize; bold: true }
                    whole: modelData.value
                }
            }
        }
    }
}
