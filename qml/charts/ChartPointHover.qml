// SPDX-License-Identifier: GPL-3.0-or-later
import QtQuick 2.15
import "../widgets"
import "../widgets/texts.js" as Texts

/// The note beside a point of a chart. While holdOn is set it stays where it is and says what it said.
Rectangle {
    id: note

    property string y_text          ///< markup
    property bool holdOn: false
    /// What is put back while the note is held.
    property var kept: ({ x: 0, y: 0, y_text: "", visible: false })

    function keep(name) {
        if (!holdOn)
            kept[name] = note[name]
        else if (note[name] !== kept[name])
            note[name] = kept[name]
    }

    width: label.implicitWidth + 16
    height: label.implicitHeight + 10
    radius: Theme.radius
    color: Theme.quietGround
    border { width: holdOn ? 2 : 1; color: holdOn ? Theme.accent : Theme.fieldLine }
    visible: false
    onXChanged: keep("x")
    onYChanged: keep("y")
    onY_textChanged: keep("y_text")
    onVisibleChanged: keep("visible")
    Accessible.role: Accessible.ToolTip
    Accessible.name: Texts.plain(y_text)

    VfText {
        id: label

        anchors.centerIn: parent
        font.pixelSize: 12
        textFormat: Text.RichText
        text: note.y_text
    }
}
