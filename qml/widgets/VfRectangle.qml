// SPDX-License-Identifier: GPL-3.0-or-later
import QtQuick 2.15
import "."

/// A framed group on a quiet ground.
VfFrame {
    color: Theme.quietGround
}
