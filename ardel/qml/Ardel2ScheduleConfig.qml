// SPDX-License-Identifier: GPL-3.0-or-later
import QtQuick 2.15
import "../../qml/widgets"

/// The entry of a schedule. What cannot be one is told, and the first field to mend gets the keyboard: the states are
/// named after it.
VfFrame {
    id: entry

    /// What is wrong with the entry; "" when nothing is.
    signal told(string message)

    /// The instrument's lines separate by commas, quote by double quotes, and are in ISO 8859-1.
    function labelStands() { return /^[ !#-+\--~\xa0-\xff]*$/.test(label.text) }

    /// The state of the first field that cannot stand, "" without one.
    function fault() {
        if (!(day.text >= 1 && day.text <= 31))
            return "dayError"
        if (!labelStands())
            return "labelError"
        if (start.fault)
            return "startError"
        if (pausable.checked && pause.fault)
            return "pauseError"
        if (pausable.checked && resume.fault)
            return "resumeError"
        return stop.fault ? "stopError" : ""
    }

    function collected() {
        var schedule = { monthDay: Number(day.text), label: label.text, pausable: pausable.checked,
                         startTime: start.text, stopTime: stop.text }
        if (pausable.checked)
            Object.assign(schedule, { pauseTime: pause.text, resumeTime: resume.text })
        return schedule
    }

    function refuseNothing() {
        state = ""
        told("")
    }

    function add() {
        refuseNothing()
        state = fault()
        if (state === "")
            core.addSchedule(JSON.stringify(collected()))
    }

    function refuse(input, message) {
        input.field.forceActiveFocus()
        told(message)
    }

    label: qsTr("New schedule")
    Keys.onReturnPressed: add()
    Keys.onEnterPressed: add()

    states: [
        State {
            name: "dayError"
            StateChangeScript { script: entry.refuse(day, qsTr("The day shall be between 1 and 31") + ".") }
        },
        State {
            name: "labelError"
            StateChangeScript {
                script: entry.refuse(label, qsTr("The label shall have neither commas, double quotes nor signs unknown to"
                                                 + " the instrument") + ".")
            }
        },
        State { name: "startError"; StateChangeScript { script: entry.refuse(start, start.refusal) } },
        State { name: "pauseError"; StateChangeScript { script: entry.refuse(pause, pause.refusal) } },
        State { name: "resumeError"; StateChangeScript { script: entry.refuse(resume, resume.refusal) } },
        State { name: "stopError"; StateChangeScript { script: entry.refuse(stop, stop.refusal) } }
    ]

    Grid {
        columns: 4
        spacing: Theme.spacing
        verticalItemAlignment: Grid.AlignVCenter

        VfInputText {
            id: day

            fieldWidth: 50
            label: qsTr("Month day")
            labelWidth: 80
            maximumLength: 2
            validator: RegExpValidator { regExp: /\d{0,2}/ }
        }
        VfInputText {
            id: label

            fieldWidth: 130
            label: qsTr("Label")
            labelWidth: 80
            maximumLength: 11
        }
        VfClockField {
            id: start

            fieldWidth: 64
            label: qsTr("Start time")
            labelWidth: 90
            refusal: qsTr("Start time shall have hh:mm format")
        }
        VfClockField {
            id: stop

            fieldWidth: 64
            label: qsTr("Stop time")
            refusal: qsTr("Stop time shall have hh:mm format") + "."
        }
        VfCheckBox { id: pausable; text: qsTr("Break") }
        VfClockField {
            id: pause

            enabled: pausable.checked
            fieldWidth: 64
            label: qsTr("Pause time")
            labelWidth: 80
            opacity: enabled ? 1 : 0.5
            refusal: qsTr("Pause time shall have hh:mm format") + "."
        }
        VfClockField {
            id: resume

            enabled: pausable.checked
            fieldWidth: 64
            label: qsTr("Resume time")
            labelWidth: 90
            opacity: enabled ? 1 : 0.5
            refusal: qsTr("Resume time shall have hh:mm format") + "."
        }
        Item {
            width: button.width
            height: button.height
            MyButton { id: button; buttonLabel: qsTr("Add"); onMyButtonclicked: entry.add() }
        }
    }

    Connections {
        target: label.field
        function onTextEdited() {
            if (entry.labelStands() && entry.state !== "labelError")
                return
            entry.refuseNothing()
            if (!entry.labelStands())
                entry.state = "labelError"
        }
    }
    Connections {
        target: core
        function onScheduleError(message) {
            if (core.devName === "ARDEL 2")
                entry.told(message)
        }
        function onScheduleOk() {
            if (core.devName !== "ARDEL 2")
                return
            entry.told("")
            day.field.forceActiveFocus()
            day.field.selectAll()
        }
    }
}
