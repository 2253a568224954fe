// SPDX-License-Identifier: GPL-3.0-or-later
import QtQuick 2.15
import "experiments.js" as Experiments

/// The base of the pages that show an experiment: takes those of its own product.
VfPage {
    id: page

    property string productName

    /// The JSON text of an experiment of the product has come, from a position of its chain.
    function take(text, position) {}

    /// Every such page hears of every experiment, and even to look at a long text costs. The page of the session's
    /// product looks at once; the others look only when the experiment turned out not to be that page's.
    function update(position) {
        if (!core.devName || core.devName === productName)
            look(position)
        else
            Qt.callLater(lookLeft, position)
    }

    function lookLeft(position) {
        if (Experiments.taken !== core.devName)
            look(position)
    }

    function look(position) {
        var text = core.experiment.toString(), own = Experiments.member(text, "deviceName") === productName
        if (core.devName === productName)
            Experiments.taken = own ? productName : ""
        if (own)
            take(text, position)
    }
}
