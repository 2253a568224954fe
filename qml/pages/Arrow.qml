// SPDX-License-Identifier: GPL-3.0-or-later
import QtQuick 2.15
import "../widgets"

/// An arrow to a neighbour in a chain of experiments, left or right.
MyImageButton {
    property bool backward: false
    readonly property string picture: backward ? "/setaesq1x" : "/setadir1x"

    imgbtnpicdef: picture + ".png"
    imgbtnpichover: picture + "hover.png"
    imgbtnpicclicked: picture + "clicked.png"
    label: backward ? qsTr("Previous experiment") : qsTr("Next experiment")
    visible: false
    onDoubleClicked: myImgBtnClicked() // each of many quick clicks is a step
    enabled: visible // nor has it the keyboard while hidden
}
