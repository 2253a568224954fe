// SPDX-License-Identifier: GPL-3.0-or-later
import QtQuick 2.15
import "qrc:/thalvex4/qml"

HeatStressPageCase {
    product: "THALVEX 4"
    title: "Thalvex 4"
    page: Component { PageThalvex4 {} }
    nameFilters: ["Suite Morvane Files (*.tv4)", "All files (*)"]
    configurationHeight: 320
    experiments: [{ index: 1, dateTime: new Date(2021, 2, 5, 14, 30), size: 1 },
                  { index: 2, dateTime: new Date(2021, 2, 5, 14, 30), size: 86400, exp_Name: "Caldeira à lenha <b>" },
                  { index: 3, dateTime: new Date(NaN), size: 5, exp_Name: "" }]
    secondTexts: ["2:", "Caldeira à lenha <b>",
                  "Date: " + experiments[1].dateTime.toLocaleString(Qt.locale(), Locale.LongFormat), "Size: 86400"]
}
