// SPDX-License-Identifier: GPL-3.0-or-later
import QtQuick 2.15
import "."
import "texts.js" as Texts

/// A framed group: its label on top, its content below. It asks for the implicit size of its content.
Item {
    id: frame

    property string label           ///< markup
    property int padding: 12
    property alias color: box.color
    default property alias content: inside.data
    readonly property real labelHeight: label === "" ? 0 : caption.implicitHeight + 4

    /// The most room that a child asks for in one direction ("Width" or "Height").
    function demand(direction) {
        var most = 0
        for (var i = 0; i < inside.children.length; ++i)
            most = Math.max(most, inside.children[i]["implicit" + direction])
        return most
    }

    implicitWidth: Math.max(demand("Width"), caption.implicitWidth) + 2 * padding
    implicitHeight: demand("Height") + labelHeight + 2 * padding
    Accessible.role: Accessible.Grouping
    Accessible.name: Texts.plain(label)

    VfText {
        id: caption

        width: Math.min(implicitWidth, frame.width)
        clip: implicitWidth > width
        text: frame.label
        color: Theme.quietText
        font { pixelSize: Theme.smallSize; bold: true }
        textFormat: Text.RichText
        visible: frame.label !== ""
    }

    MyRec {
        id: box

        anchors { fill: parent; topMargin: frame.labelHeight }

        Item {
            id: inside

            anchors { fill: parent; margins: frame.padding }
        }
    }
}
