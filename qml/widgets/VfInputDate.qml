// SPDX-License-Identifier: GPL-3.0-or-later
import QtQuick 2.15
import "."
import "texts.js" as Texts

/// A labelled date in the locale's short form; a click or Return opens a calendar.
Row {
    id: input

    property alias label: field.label
    property alias labelWidth: field.labelWidth
    property date value
    readonly property alias calendar: loader.item

    function edit() {
        loader.active = true
        calendar.edit(value)
    }

    spacing: Theme.gap

    VfInputText {
        id: field

        readOnly: true
        text: isNaN(input.value) ? Texts.absent : input.value.toLocaleDateString(Qt.locale(), Locale.ShortFormat)

        MouseArea { parent: field.field; anchors.fill: parent; onClicked: input.edit() }
    }
    MyButton {
        implicitWidth: Theme.controlHeight
        buttonLabel: "\u2026"
        Accessible.name: qsTr("Choose a date")
        onMyButtonclicked: input.edit()
    }

    Loader {
        id: loader

        active: false
        sourceComponent: VfCalendar { onConfirm: input.value = date }
    }
}
