pragma ComponentBehavior: Bound
import QtQuick
import Loomstreet.Components
import Loomstreet.Theme

// A conversation that is still coming: a question, an answer and the pieces below it.
Column {
    id: skeleton

    property bool wanted: false
    readonly property bool shown: wanted && late.elapsed

    visible: shown
    spacing: Theme.space2

    // What comes at once needs no stand-in.
    Timer {
        id: late

        property bool elapsed: false

        interval: 150
        running: skeleton.wanted && !elapsed
        onTriggered: elapsed = true
    }
    onWantedChanged: if (!wanted) late.elapsed = false

    Accessible.ignored: true

    Skeleton {
        anchors.right: parent.right
        width: Math.round(parent.width * 0.62)
        height: 38
        radius: Theme.radiusPanel
    }
    Column {
        width: parent.width
        spacing: Theme.space1

        Repeater {
            model: [0.94, 0.86, 0.4]

            Skeleton {
                required property real modelData

                anchors.left: parent?.left
                width: Math.round(skeleton.width * modelData)
                height: Theme.type.body.size
            }
        }
    }
    Column {
        width: parent.width
        spacing: Theme.space1

        Repeater {
            model: 3

            Skeleton {
                width: Math.min(skeleton.width, 520)
                height: Theme.cardMessageThumb.height + 18
                radius: Theme.radiusPanel
            }
        }
    }
}
