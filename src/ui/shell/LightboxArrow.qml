import QtQuick
import Loomstreet.Components
import Loomstreet.Theme

// Turns to another picture. Where the picture reaches below it, it lies on a surface of its own.
IconButton {
    id: control

    property bool covers: false

    extent: Theme.targetPrimary
    radius: Theme.targetPrimary / 2

    Rectangle {
        anchors.fill: parent
        z: -2
        visible: control.covers
        radius: control.radius
        color: Theme.surface
        border { width: Theme.strokeHairline; color: Theme.hairline }
    }
}
