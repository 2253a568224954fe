// SPDX-License-Identifier: GPL-3.0-or-later
import QtQuick 2.15
import QtQuick.Layouts 1.15
import QtQuick.Window 2.15
import "../widgets"
import "reportkeys.js" as ReportKeys

/// The base of the report windows: the switches of a family, the texts that all reports have, the file, and the JSON that
/// the printer reads. A family names its boxes in groups; switches, boxes and keys follow from the same lists.
Window {
    id: window

    /// Groups of boxes {title, key, boxes: [{key, label, text}]}. Those with a key of their own have a head box that switches
    /// its boxes; the first list stands in one frame under itemsTitle, the second in a frame for each.
    property string itemsTitle
    property var itemGroups: []
    property var optionGroups: []
    /// Whether the client's employee is among the texts.
    property bool employeeAsked: false
    /// The experiment that the page shows, and the keys of the boxes that cannot be on with it.
    property var experiment: null
    property var withheld: []
    /// The keys of the boxes that can be on, but are off at first.
    property var offAtFirst: []
    property string notesTitle: qsTr("Notes")
    property string notesLabel: qsTr("Show notes")

    readonly property var employee: ({ on: "emplInfoEnable", text: "emplName", label: qsTr("Employee"),
                                       example: qsTr("Joe Smith") })
    readonly property var client: [
        { on: "cmpnyInfoEnable", text: "cmpnyName", label: qsTr("Company"), example: qsTr("McHat, Inc.") }
    ].concat(employeeAsked ? employee : [], [
        { on: "siteInfoEnable", text: "siteName", label: qsTr("Site/Area"), example: qsTr("Engineering") }
    ])
    readonly property var identification: [
        { on: "ownCompanyInfoEnable", text: "ownCompany", label: qsTr("Company"), example: qsTr("Evaluations, Inc.") },
        { on: "collectorInfoEnable", text: "collectorName", label: qsTr("Collected by"), example: qsTr("Ann Field") },
        { on: "repInfoEnable", text: "repName", label: qsTr("Reporter name"), example: qsTr("Paul Writer") },
        { on: "repIdInfoEnable", text: "repIdReg", label: qsTr("Reporter ID"), example: qsTr("123456"),
          under: "repInfoEnable" }
    ]
    readonly property var logo: ({ on: "logoEnable", text: "logoFile" })
    readonly property var notes: ({ on: "obsEnable", text: "obsText" })

    readonly property var rows: ReportKeys.joined(itemGroups.concat(optionGroups), ReportKeys.ofGroup)
        .concat(ReportKeys.joined(client.concat(identification, logo, notes), ReportKeys.ofField),
                ReportKeys.text("fileName"))
    /// What is on and what was typed, by key.
    property var values: ({})
    /// The file of which its dialog has asked whether it may be replaced; what is there after a report was not meant.
    property string asked

    signal confirmedOK(string cfg)

    function isOn(key) { return key === undefined || values[key] === true }
    function set(key, value) { values = ReportKeys.changed(values, key, value) }

    function submit() {
        warning.visible = !values.fileName
        if (!warning.visible)
            confirmedOK(JSON.stringify(ReportKeys.parameters(rows, values)))
    }

    color: Theme.ground
    flags: Qt.Dialog
    modality: Qt.ApplicationModal
    minimumWidth: width
    minimumHeight: height
    width: 850
    height: 550
    onVisibleChanged: {
        values = ReportKeys.allOn(rows, values, withheld.concat(offAtFirst))
        x = Screen.virtualX + Math.max(0, Screen.width - width) / 2
        y = Screen.virtualY + Math.max(0, Screen.height - height) / 2
    }

    Shortcut { sequence: StandardKey.Cancel; onActivated: window.close() }

    Component {
        id: groupBoxes

        ReportBoxes {
            captioned: true
            group: modelData
            values: window.values
            withheld: window.withheld
            onToggled: window.set(key, on)
            onEdited: window.set(key, text)
        }
    }

    Component {
        id: textField

        VfFieldTextInput {
            Layout.fillWidth: true
            checked: window.isOn(modelData.on)
            enabled: window.isOn(modelData.under)
            group: parent ? parent.group : ""
            label: modelData.label + ":"
            placeholderText: qsTr("E.g.") + " " + modelData.example
            onToggled: window.set(modelData.on, on)
            onEdited: window.set(modelData.text, text)
        }
    }

    ColumnLayout {
        anchors { fill: parent; margins: 14 }
        spacing: 10

        RowLayout {
            spacing: 14

            ColumnLayout {
                Layout.alignment: Qt.AlignTop
                Layout.fillHeight: true
                spacing: 10

                VfFrame {
                    label: window.itemsTitle
                    Layout.fillWidth: true
                    Row {
                        spacing: 24
                        Repeater { model: window.itemGroups; delegate: groupBoxes }
                    }
                }
                RowLayout {
                    spacing: 10
                    Repeater {
                        model: window.optionGroups
                        VfFrame {
                            Layout.alignment: Qt.AlignTop
                            Layout.fillWidth: true
                            Layout.fillHeight: true
                            Layout.maximumHeight: Math.max(100, implicitHeight)
                            label: modelData.title
                            ReportBoxes {
                                group: modelData
                                values: window.values
                                withheld: window.withheld
                                onToggled: window.set(key, on)
                                onEdited: window.set(key, text)
                            }
                        }
                    }
                }
                VfFrame {
                    label: qsTr("Logo")
                    Layout.fillHeight: true
                    Layout.fillWidth: true
                    VfImage {
                        anchors.fill: parent
                        label: qsTr("Show logo")
                        checked: window.isOn(window.logo.on)
                        onToggled: window.set(window.logo.on, on)
                        onPicked: window.set(window.logo.text, fileName)
                    }
                }
            }

            ColumnLayout {
                Layout.alignment: Qt.AlignTop
                Layout.fillHeight: true
                Layout.fillWidth: true
                spacing: 10

                VfFrame {
                    label: qsTr("Client")
                    Layout.fillWidth: true
                    ColumnLayout {
                        property string group: qsTr("Client")

                        width: parent.width
                        spacing: 2
                        Repeater { model: window.client; delegate: textField }
                    }
                }
                VfFrame {
                    label: qsTr("Identification")
                    Layout.fillWidth: true
                    ColumnLayout {
                        property string group: qsTr("Identification")

                        width: parent.width
                        spacing: 2
                        Repeater { model: window.identification; delegate: textField }
                    }
                }
                VfFrame {
                    label: window.notesTitle
                    Layout.fillHeight: true
                    Layout.fillWidth: true
                    VfObservation {
                        anchors.fill: parent
                        label: window.notesLabel
                        checked: window.isOn(window.notes.on)
                        onToggled: window.set(window.notes.on, on)
                        onEdited: window.set(window.notes.text, text)
                    }
                }
            }
        }

        RowLayout {
            spacing: 14
            VfSelectFile {
                Layout.fillWidth: true
                onPicked: {
                    window.asked = fileName
                    window.set("fileName", fileName)
                    warning.visible = false
                }
            }
            MyButton {
                buttonLabel: qsTr("Generate PDF")
                onMyButtonclicked: window.submit()
            }
        }
        Item { // keeps its place, so that the buttons keep theirs
            implicitHeight: warning.implicitHeight

            VfText {
                id: warning

                color: Theme.warning
                text: qsTr("File name shall not be empty")
                visible: false
            }
        }
    }
}
