// SPDX-License-Identifier: GPL-3.0-or-later
import QtQuick 2.15
import QtQuick.Window 2.15
import "."

/// A question whose "Yes" loses something: Return, Escape and closing the window answer "No". Its window is made when it
/// is first asked.
QtObject {
    id: question

    property Item owner
    property string title
    property string text
    property VfWindow window: null
    readonly property bool visible: window !== null && window.visible
    property Component made: VfWindow {
        id: box

        title: question.title
        width: 460
        // Grows with its words, also when it is asked again; hence no fixed height.
        height: Math.max(150, words.implicitHeight + answers.height + 3 * Theme.margin)
        minimumHeight: 150
        maximumHeight: 1000
        onActiveChanged: {
            if (!active)
                return
            noButton.forceActiveFocus()
            noButton.focusReason = Qt.TabFocusReason // seen to be what Return presses
        }
        onClosing: question.no()

        VfText {
            id: words

            anchors { left: parent.left; right: parent.right; top: parent.top; margins: Theme.margin }
            text: question.text
            wrapMode: Text.Wrap
            Accessible.role: Accessible.AlertMessage
            Accessible.name: text
        }
        Row {
            id: answers

            anchors { right: parent.right; bottom: parent.bottom; margins: Theme.margin }
            spacing: Theme.gap * 1.5

            MyButton {
                buttonLabel: qsTr("Yes")
                dangerous: true
                onMyButtonclicked: {
                    box.hide()
                    question.yes()
                }
            }
            MyButton {
                id: noButton

                buttonLabel: qsTr("No")
                focus: true
                onMyButtonclicked: box.close()
            }
        }
    }

    signal yes()
    signal no()

    /// Comes up in front of the window that asks; without one, of the owner's.
    function open(asking) {
        if (window === null)
            window = made.createObject(owner)
        window.transientParent = asking || owner.Window.window
        window.present()
    }

    function close() {
        if (window !== null)
            window.close()
    }
}
