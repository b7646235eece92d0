import QtQuick
import Loomstreet.Theme

// How far along: a thin bar that fills from the start.
Item {
    id: meter

    property real value: 0 // 0 to 1
    property string name // for assistive tools
    readonly property real share: Math.max(0, Math.min(1, value))

    implicitWidth: 200
    implicitHeight: 4

    Accessible.role: Accessible.ProgressBar
    Accessible.name: name
    Accessible.description: Math.round(share * 100) + " %"

    Rectangle {
        anchors.fill: parent
        radius: 2
        color: Theme.hairline
    }
    Rectangle {
        objectName: "filled"
        anchors.left: parent.left
        width: parent.width * meter.share
        height: parent.height
        radius: 2
        color: Theme.accent
    }
}
