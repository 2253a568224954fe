// SPDX-License-Identifier: GPL-3.0-or-later
import QtQuick 2.15

/// A state of the shell: one page instead of the home page, and the way back from it.
State {
    property Item page
    /// The page to whose caller the back button returns.
    property Item backPage: page

    PropertyChanges { target: root.pageHome; visible: false }
    PropertyChanges { target: page; visible: true }
    PropertyChanges { target: root.backButton; visible: true; page: backPage }
}
