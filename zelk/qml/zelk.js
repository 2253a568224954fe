// SPDX-License-Identifier: GPL-3.0-or-later
// What the logger's pages make of a sensor module's codes and figures.
.pragma library
.import "../../qml/widgets/texts.js" as Texts
.import "../../qml/charts/timechart.js" as TimeChart

var pictures = {
    LUX: "Lux", LUX_UV: "Lux_UV", UV: "UV", AMB: "IAQ", HVAC: "HVAC", HVAC_AMB: "HVAC_IAQ", CO2: "CO2", CO: "CO",
    C2H6O: "C2H6O", H2S: "H2S", SO2: "SO2", NO2: "NO2", O3: "O3", VOC: "VOC", MAG: "Mag", EMF: "Emf", RAD: "Rad"
}

// The picture of a kind of sensor, told by its type or a gas sensor's subtype; "" for an unknown one.
function picture(kind) {
    return pictures.hasOwnProperty(kind) ? "/Icon" + pictures[kind] + ".png" : ""
}

// The quantities {name, nameTr, unity} that some results are of; a file cannot make them more than anybody could look at.
function quantities(results) {
    return (results.quantitiesInfoList || []).slice(0, 100).map(function (quantity) { return quantity || {} })
}

// What quantities are picked by: their names, those of one name numbered.
function names(quantities) {
    return quantities.map(function (quantity, place) {
        var before = quantities.slice(0, place).filter(function (other) { return other.nameTr === quantity.nameTr }).length
        return Texts.shown(quantity.nameTr || "", 40) + (before > 0 ? " (" + (before + 1) + ")" : "")
    })
}

// The name of a quantity with its unit, if it has one.
function caption(quantity) {
    return Texts.shown(quantity.nameTr || "", 40) + (quantity.unity ? " [" + Texts.shown(quantity.unity, 20) + "]" : "")
}

// The same as markup.
function title(quantity) { return Texts.escaped(caption(quantity)) }

// The range of a chart from the lowest to the highest of its values, as {low, high}: of equal values it reaches to 0.
function range(low, high) {
    if (low !== high)
        return low < high ? { low: low, high: high } : { low: NaN, high: NaN }
    return low === 0 ? { low: -1, high: 1 } : { low: Math.min(low, 0), high: Math.max(low, 0) }
}

// The same as the instrument tells its ends; where it does not tell them, from the values.
function toldRange(low, high, values) {
    var told = range(TimeChart.number(low), TimeChart.number(high)), found = TimeChart.extremes([values])
    return isNaN(told.low) ? range(found.low, found.high) : told
}
