// SPDX-License-Identifier: GPL-3.0-or-later
import QtQuick 2.15

/// The window of an instrument of which nothing but the time between two samples can be set.
VfConfigurationWindow {
    property alias sampleTime: frame.text
    property alias caption: frame.label

    function fill(configuration) { frame.show(configuration.sampleTime || "") }

    function collected() {
        warning = frame.fault
        return warning ? null : { sampleTime: sampleTime }
    }

    VfSampleTime { id: frame; width: parent.width; height: 100 }
}
