import QtQuick
import Loomstreet.Theme

// A short arc that turns while something is under way. With reduced motion it stands still.
Item {
    id: spinner

    property color color: Theme.ink
    property int size: 16
    property bool running: true

    implicitWidth: size
    implicitHeight: size
    visible: running

    Icon {
        anchors.fill: parent
        name: spinner.running ? "spinner" : ""
        size: spinner.size
        color: spinner.color

        RotationAnimator on rotation {
            running: spinner.running && spinner.visible && !Theme.reducedMotion
            from: 0
            to: 360
            duration: 900
            loops: Animation.Infinite
        }
    }
}
