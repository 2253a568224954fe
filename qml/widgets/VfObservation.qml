// SPDX-License-Identifier: GPL-3.0-or-later
import QtQuick 2.15
import QtQuick.Controls 2.15
import "."

/// Notes of a report, with the box that says whether they are printed; what exceeds the maximum length is cut.
Item {
    id: notes

    property string label
    property int maximumLength: 3000
    property alias checked: box.checked
    property alias text: area.text

    signal toggled(bool on)
    signal edited(string text)

    implicitHeight: 120
    implicitWidth: 340

    VfCheckBox {
        id: box

        text: notes.label
        onToggled: notes.toggled(checked)
    }

    Flickable {
        id: flickable

        anchors { left: parent.left; right: parent.right; top: box.bottom; bottom: parent.bottom }
        clip: true
        ScrollBar.vertical: ScrollBar {}

        TextArea.flickable: TextArea {
            id: area

            color: Theme.text
            enabled: box.checked
            font { family: fontSans.name; pixelSize: Theme.smallSize }
            padding: 6
            selectByMouse: true
            selectedTextColor: Theme.textOnDark
            selectionColor: Theme.accent
            wrapMode: TextEdit.Wrap
            // Tab leads on to the next field, as everywhere in the window.
            Keys.priority: Keys.BeforeItem
            Keys.onTabPressed: nextItemInFocusChain().forceActiveFocus(Qt.TabFocusReason)
            Keys.onBacktabPressed: nextItemInFocusChain(false).forceActiveFocus(Qt.BacktabFocusReason)
            Accessible.name: notes.label
            Accessible.role: Accessible.EditableText
            onTextChanged: {
                if (length > notes.maximumLength)
                    remove(notes.maximumLength, length)
                else
                    notes.edited(text)
            }
            background: Rectangle {
                color: area.enabled ? Theme.ground : Theme.quietGround
                border { width: area.activeFocus ? 2 : 1; color: area.activeFocus ? Theme.accent : Theme.fieldLine }
                radius: Theme.radius
            }
        }
    }
}
