// SPDX-License-Identifier: GPL-3.0-or-later
import QtQuick 2.15
import "qrc:/lomtrix/qml"

InstrumentPageCase {
    readonly property date moment: new Date(2021, 2, 5, 14, 30)

    product: "LOMTRIX"
    title: "Lomtrix"
    page: Component { PageLomtrix {} }
    nameFilters: ["Suite Morvane Files (*.lmt)", "All files (*)"]
    several: true
    oneType: true
    configuration: ({ sampleTime: "01:15" })
    fillRows: [{ tag: "an hour", configuration: { sampleTime: "60:00" }, ticked: "", texts: ["60:00"] },
               { tag: "more than the field holds", configuration: { sampleTime: "100:00" }, ticked: "",
                 texts: ["Set in the instrument: 100:00"] },
               { tag: "another product", configuration: { productName: "ZELK", sampleTime: "02:00" }, ticked: "",
                 texts: ["01:15"] }]
    applyRows: [{ tag: "as read", sent: configuration },
                { tag: "none", typed: "00:00", sent: { sampleTime: "00:00" } },
                { tag: "an hour", typed: "60:00" },
                { tag: "more than the field holds", configuration: { sampleTime: "100:00" } },
                { tag: "empty", typed: "" }]
    refusal: "The sample time field shall have mm:ss format"
    experiments: [{ index: 1, dateTime: moment, size: 1, exp_Name: "Saw", type: "H" },
                  { index: 2, dateTime: moment, size: 86400, exp_Name: "Trator à diesel <b>", type: "B" },
                  { index: 3, dateTime: new Date(NaN), size: 5, exp_Name: "", type: "H" }]
    secondTexts: ["", "2:", "Trator à diesel <b>", "Date: " + moment.toLocaleString(Qt.locale(), Locale.LongFormat),
                  "Size: 86400"]
}
