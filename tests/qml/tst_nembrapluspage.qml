// SPDX-License-Identifier: GPL-3.0-or-later
import QtQuick 2.15
import "qrc:/nembraplus/qml"

SoundLevelPageCase {
    product: "NEMBRA+"
    title: "Nembra+"
    page: Component { PageNembraPlus {} }
    nameFilters: ["Suite Morvane Files (*.nbp)", "All files (*)"]
}
