// SPDX-License-Identifier: GPL-3.0-or-later
import QtQuick 2.15

/// The pages of the heat-stress meters set the unit and the sample time.
InstrumentPageCase {
    configuration: ({ unity: "°C", sampleTime: "10:00" })
    fillRows: [{ tag: "Fahrenheit", configuration: { unity: "°F", sampleTime: "59:59" }, ticked: "°F", texts: ["59:59"] },
               { tag: "Celsius", configuration: { unity: "°C", sampleTime: "00:01" }, ticked: "°C", texts: ["00:01"] },
               { tag: "unknown unit", configuration: { unity: "K", sampleTime: "01:00" }, ticked: "", texts: ["01:00"] },
               { tag: "another product", configuration: { productName: "ZELK", unity: "°F", sampleTime: "02:00" },
                 ticked: "°C", texts: ["10:00"] }]
    applyRows: [{ tag: "longest", typed: "59:59", sent: { sampleTime: "59:59", unity: "°C" } },
                { tag: "other unit", typed: "00:01", pick: "°F", sent: { sampleTime: "00:01", unity: "°F" } },
                { tag: "picked twice", typed: "00:01", pick: "°C", sent: { sampleTime: "00:01", unity: "°C" } },
                { tag: "no unit", typed: "01:00", configuration: { unity: "", sampleTime: "05:00" },
                  sent: { sampleTime: "01:00" } },
                { tag: "sixty minutes", typed: "60:00" },
                { tag: "sixty seconds", typed: "00:60" },
                { tag: "a digit short", typed: "0:30" },
                { tag: "empty", typed: "" }]
    refusal: "The sample time field shall have mm:ss format"
}
