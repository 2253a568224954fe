// SPDX-License-Identifier: GPL-3.0-or-later
import QtQuick 2.15
import "."

/// Text in the common font, and never markup unless it says so.
Text {
    color: Theme.text
    font { family: fontSans.name; pixelSize: Theme.fontSize }
    linkColor: Theme.accent
    textFormat: Text.PlainText
}
