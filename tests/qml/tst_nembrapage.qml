// SPDX-License-Identifier: GPL-3.0-or-later
import QtQuick 2.15
import "qrc:/nembra/qml"

SoundLevelPageCase {
    product: "NEMBRA"
    title: "Nembra"
    page: Component { PageNembra {} }
    nameFilters: ["Suite Morvane Files (*.nbr)", "All files (*)"]
}
