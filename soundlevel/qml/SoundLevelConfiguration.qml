// SPDX-License-Identifier: GPL-3.0-or-later
import QtQuick 2.15
import "../../qml/pages"

/// What can be set on a sound level meter.
VfConfigurationWindow {
    function fill(configuration) { settings.fill(configuration) }

    function collected() {
        var configuration = {}
        for (var key in settings.groups)
            if (settings.groups[key].isChosen)
                configuration[key] = settings.groups[key].value
        return configuration
    }

    VfNoiseSettings { id: settings; width: parent.width }
}
