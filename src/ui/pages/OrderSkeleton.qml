pragma ComponentBehavior: Bound
import QtQuick
import Loomstreet.Components
import Loomstreet.Theme

// An order while it is on its way.
Item {
    id: skeleton

    property bool stacked: false

    readonly property int mainWidth: stacked ? width : width - 304 - Theme.space6

    Column {
        anchors.left: parent.left
        width: skeleton.mainWidth
        spacing: Theme.space3

        Skeleton { anchors.left: parent.left; width: Math.min(320, parent.width); height: 36 }
        Skeleton { anchors.left: parent.left; width: 160 }
        Skeleton { width: parent.width; height: 12 }
        Repeater {
            model: 3

            Row {
                anchors.left: parent?.left
                spacing: Theme.space2

                Skeleton { width: 72; height: 96; radius: Theme.radiusPicture }
                Column {
                    anchors.verticalCenter: parent.verticalCenter
                    spacing: Theme.space1

                    Skeleton { anchors.left: parent.left; width: 200 }
                    Skeleton { anchors.left: parent.left; width: 96; height: 14 }
                }
            }
        }
    }
    Column {
        anchors { right: parent.right; top: parent.top; topMargin: Theme.space1 }
        visible: !skeleton.stacked
        width: 304
        spacing: Theme.space1_5

        Repeater {
            model: 5

            Skeleton { width: 304 }
        }
    }
}
