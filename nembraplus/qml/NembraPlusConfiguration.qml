// SPDX-License-Identifier: GPL-3.0-or-later
import QtQuick 2.15
import "../../soundlevel/qml"

SoundLevelConfiguration {
    productName: "NEMBRA+"
    title: qsTr("Nembra+ - ") + qsTr("Configuration")
}
