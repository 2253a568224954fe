// SPDX-License-Identifier: GPL-3.0-or-later
import QtQuick 2.15
import "."

/// A label with its value.
Row {
    property string label
    property string value

    spacing: 6
    Accessible.role: Accessible.StaticText
    Accessible.name: label + " " + value

    VfText { text: label; color: Theme.quietText }
    VfText { text: value; font.bold: true }
}
