// SPDX-License-Identifier: GPL-3.0-or-later
import QtQuick 2.15
import "../../qml/pages"
import "../../soundlevel/qml"
import "../../soundlevel/qml/soundlevel.js" as SoundLevel

VfResultsPage {
    function fill(parsed) { viewItem.show(parsed) }

    pageTitle: qsTr("Nembra+ - Results")
    productName: "NEMBRA+"
    info: SoundLevelExpInfo {}
    view: SoundLevelView {
        groupsOf: function (results) {
            // A row for each frequency weighting; the keys of the results end as the symbols do.
            function figures(endings) {
                return ["Z", "C", "A"].reduce(function (rows, weighting) {
                    return rows.concat(endings.map(function (ending) {
                        var key = weighting + ending
                        return SoundLevel.figure(key.replace("Eq", "eq"), results["L" + key], root.numberToLocalString)
                    }))
                }, [])
            }
            return [
                { label: qsTr("Analysis"), columns: 3, figures: figures(["Eq", "E", "peak"]) },
                { label: qsTr("Max/Min"), columns: 6, figures: figures(["IMin", "IMax", "FMin", "FMax", "SMin", "SMax"]) },
                { label: qsTr("Statistics"), columns: 5, figures: SoundLevel.statistics(results, root.numberToLocalString) }
            ]
        }
    }
    reportWindow: NembraPlusPrinterConfiguration {}
}
