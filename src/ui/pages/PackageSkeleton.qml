pragma ComponentBehavior: Bound
import QtQuick
import Loomstreet.Components
import Loomstreet.Theme

// A package while its carrier is asked.
Column {
    id: skeleton

    property bool shown: false

    visible: shown && late.elapsed
    spacing: Theme.space2

    onShownChanged: if (!shown) late.elapsed = false

    // What comes at once needs no stand-in.
    Timer {
        id: late

        property bool elapsed: false

        interval: 150
        running: skeleton.shown && !elapsed
        onTriggered: elapsed = true
    }
    Skeleton { anchors.left: parent.left; width: Math.min(240, skeleton.width); height: 28 }
    Skeleton { anchors.left: parent.left; width: Math.min(200, skeleton.width) }
    Repeater {
        model: 4

        Column {
            anchors.left: parent?.left
            spacing: Theme.spaceHalf

            Skeleton { anchors.left: parent.left; width: Math.min(280, skeleton.width) }
            Skeleton { anchors.left: parent.left; width: Math.min(160, skeleton.width); height: 14 }
        }
    }
}
