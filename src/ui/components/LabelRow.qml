import QtQuick
import Loomstreet.Theme

// An icon and a text beside it, centred or at the start, as buttons and chips carry them.
Item {
    id: labelRow

    property string text
    property string note
    property string iconName
    property int iconSize: 20
    property bool busy: false
    property color color: Theme.ink
    property color noteColor: Theme.muted
    property TypeStyle type: Theme.type.control
    property bool centred: true
    property bool figures: false
    // What is too long for one line takes as many as this.
    property int lines: 1

    readonly property real lead: iconName !== "" ? iconSize + row.spacing : 0
    readonly property real tail: noteLabel.visible ? noteLabel.implicitWidth + row.spacing : 0
    readonly property real room: Math.max(0, width - lead - tail)
    readonly property bool wraps: lines > 1 && Math.floor(label.implicitWidth) > room && room > 0

    onBusyChanged: if (busy) spinner.setSource("LabelSpinner.qml", { row: labelRow })
    Component.onCompleted: if (busy) spinner.setSource("LabelSpinner.qml", { row: labelRow })

    // The spinner stands in the icon's place, or else in the padding around: the width stays as it is.
    implicitWidth: lead + label.implicitWidth + tail
    implicitHeight: Math.max(wraps ? wrapped.height : label.implicitHeight, iconName !== "" ? iconSize : 0)

    Row {
        id: row

        anchors.verticalCenter: parent.verticalCenter
        anchors.horizontalCenter: labelRow.centred ? parent.horizontalCenter : undefined
        anchors.left: labelRow.centred ? undefined : parent.left
        spacing: Theme.space1

        Loader {
            id: spinner

            anchors.verticalCenter: parent.verticalCenter
            active: labelRow.busy
            visible: active
        }
        Icon {
            objectName: "icon"
            anchors.verticalCenter: parent.verticalCenter
            visible: labelRow.iconName !== "" && !labelRow.busy
            name: labelRow.iconName
            size: labelRow.iconSize
            color: labelRow.color
        }
        TextLabel {
            id: label

            objectName: "label"
            anchors.verticalCenter: parent.verticalCenter
            visible: text !== "" && !labelRow.wraps
            width: Math.min(implicitWidth, labelRow.room)
            text: labelRow.text
            type: labelRow.type
            figures: labelRow.figures
            color: labelRow.color
            Accessible.ignored: true
        }
        // Apart: how wide a text would be is known of one line alone.
        Loader {
            id: wrapped

            anchors.verticalCenter: parent.verticalCenter
            active: labelRow.wraps
            visible: active
            Component.onCompleted: setSource("LabelLines.qml", { row: labelRow })
        }
        TextLabel {
            id: noteLabel

            objectName: "note"
            anchors.verticalCenter: parent.verticalCenter
            visible: text !== ""
            text: labelRow.note
            type: labelRow.type
            figures: true
            color: labelRow.noteColor
            Accessible.ignored: true
        }
    }
}
