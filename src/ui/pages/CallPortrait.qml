pragma ComponentBehavior: Bound
import QtQuick
import Loomstreet.Components
import Loomstreet.Theme

// The one who is called. What is around her says what the call is at: a turning ring of dots while it rings, a halo
// that breathes with the shopper's voice, two rings that grow with hers, and nothing while she thinks.
Item {
    id: portrait

    property string kind: "listening" // as of a CallState
    property real level: 0
    property int extent: 92
    property bool haloed: true // there is room for it

    readonly property int ringExtent: Math.round(extent * 1.14)
    readonly property int haloExtent: Math.round(extent * 1.39)
    readonly property bool speaking: kind === "speaking"
    readonly property bool connecting: kind === "connecting"
    // As loud as it looks: eyes want it slower than ears.
    property real shown: Theme.reducedMotion ? 0.6 : level

    implicitWidth: haloed ? haloExtent : ringExtent
    implicitHeight: implicitWidth

    Accessible.ignored: true

    Behavior on shown { NumberAnimation { duration: Theme.durationHover } }

    Rectangle {
        anchors.centerIn: parent
        visible: portrait.haloed && (portrait.kind === "listening" || portrait.speaking)
        width: portrait.ringExtent + (portrait.haloExtent - portrait.ringExtent) * (0.45 + 0.55 * portrait.shown)
        height: width
        radius: width / 2
        color: Theme.accentTint
        border { width: portrait.speaking ? Theme.strokeHairline : 0; color: Theme.accent }
    }
    Rectangle {
        anchors.centerIn: parent
        visible: !portrait.connecting
        width: portrait.ringExtent
        height: width
        radius: width / 2
        color: Theme.surface
        border {
            width: portrait.speaking ? Theme.strokeSelected : Theme.strokeHairline
            color: portrait.speaking ? Theme.accent : Theme.hairline
        }
    }
    Item {
        anchors.centerIn: parent
        width: portrait.ringExtent
        height: width
        visible: portrait.connecting

        Repeater {
            model: portrait.connecting ? 24 : 0

            Item {
                required property int index

                anchors.fill: parent
                rotation: index * 15
                opacity: Theme.reducedMotion ? 0.7 : 0.12 + 0.88 * index / 23

                Rectangle {
                    anchors.horizontalCenter: parent?.horizontalCenter
                    width: 3
                    height: 3
                    radius: 1.5
                    color: Theme.accent
                }
            }
        }
        RotationAnimator on rotation {
            running: portrait.connecting && portrait.visible && !Theme.reducedMotion
            from: 0
            to: 360
            duration: 1600
            loops: Animation.Infinite
        }
    }
    MiraPicture {
        anchors.centerIn: parent
        extent: portrait.extent
        opacity: portrait.kind === "ended" ? Theme.alphaPictureSoldOut : 1
    }
}
