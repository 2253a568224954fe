// SPDX-License-Identifier: GPL-3.0-or-later
import QtQuick 2.15
import "qrc:/thalvex2/qml"

HeatStressPageCase {
    product: "THALVEX 2"
    title: "Thalvex 2"
    page: Component { PageThalvex2 {} }
    nameFilters: ["Suite Morvane Files (*.tvx)", "All files (*)"]
    experiments: [{ index: 1, dateTime: new Date(2021, 2, 5, 14, 30), size: 1 },
                  { index: 2, dateTime: new Date(2021, 2, 5, 14, 30), size: 86400 },
                  { index: 3, dateTime: new Date(NaN), size: 5 }]
    secondTexts: ["2:", "Date: " + experiments[1].dateTime.toLocaleString(Qt.locale(), Locale.LongFormat), "Size: 86400"]
}
