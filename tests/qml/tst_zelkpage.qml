// SPDX-License-Identifier: GPL-3.0-or-later
import QtQuick 2.15
import QtTest 1.15
import "qrc:/zelk/qml"
import "qrc:/zelk/qml/zelk.js" as Zelk
import "items.js" as Items

InstrumentPageCase {
    id: zelk

    readonly property date moment: new Date(2021, 2, 5, 14, 30)

    product: "ZELK"
    title: "ZELK"
    configurationTitle: "Zelk - Configuration"
    configurationHeight: 280
    page: Component { PageZelk {} }
    nameFilters: ["Suite Morvane Files (*.zlk)", "All files (*)"]
    several: true
    oneType: true
    configuration: ({ sampleTime: "10:00" })
    fillRows: [{ tag: "longest", configuration: { sampleTime: "59:59" }, ticked: "", texts: ["59:59"] },
               { tag: "another product", configuration: { productName: "LOMTRIX", sampleTime: "02:00" }, ticked: "",
                 texts: ["10:00"] }]
    applyRows: [{ tag: "as read", sent: configuration }, { tag: "typed", typed: "01:30", sent: { sampleTime: "01:30" } },
                { tag: "sixty seconds", typed: "00:60" }, { tag: "a digit short", typed: "0:30" }]
    refusal: "The sample time field shall have mm:ss format"
    experiments: [{ index: 1, dateTime: moment, size: 1, exp_Name: "Forge", type: "GAS", subType: "CO" },
                  { index: 2, dateTime: moment, size: 86400, exp_Name: "Fundição <b>", type: "LUX_UV", subType: "" },
                  { index: 3, dateTime: new Date(NaN), size: 5, exp_Name: "", type: "GAS", subType: "H2S" }]
    secondTexts: ["", "2:", "Fundição <b>", "Date: " + moment.toLocaleString(Qt.locale(), Locale.LongFormat), "Size: 86400"]

    TestCase {
        id: pictures

        name: "pictures"
        when: windowShown

        Component { id: picture; Image {} }

        function test_everyKindHasOne() {
            var known = ["LUX", "LUX_UV", "UV", "AMB", "HVAC", "HVAC_AMB", "CO2", "CO", "C2H6O", "H2S", "SO2", "NO2", "O3", "VOC",
                         "MAG", "EMF", "RAD"].map(Zelk.picture)
            verify(known.every(function (file, i) {
                return known.indexOf(file) === i && createTemporaryObject(picture, zelk, { source: "qrc:" + file }).status === Image.Ready
            }))
            compare(["", "lux", "GAS", "constructor"].map(Zelk.picture), ["", "", "", ""])
        }

        function test_gasIsToldByItsSubtype() {
            core.experimentList = zelk.experiments
            var page = createTemporaryObject(zelk.page, zelk)
            tryVerify(function () { return page.list.view.itemAtIndex(2) })
            compare([0, 1, 2].map(function (place) { return page.list.view.itemAtIndex(place).picture }),
                    ["/IconCO.png", "/IconLux_UV.png", "/IconH2S.png"])
        }
    }
}
