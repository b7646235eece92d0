pragma ComponentBehavior: Bound
import QtQuick
import Loomstreet.Components
import Loomstreet.Theme

// The list of orders while it is on its way.
Column {
    id: skeleton

    Repeater {
        model: 5

        Item {
            id: row

            required property int index

            width: skeleton.width
            height: 96 + 2 * Theme.space2 + Theme.strokeHairline

            Skeleton {
                id: picture

                anchors { left: parent.left; verticalCenter: parent.verticalCenter }
                width: 72
                height: 96
                radius: Theme.radiusPicture
            }
            Column {
                anchors { left: picture.right; leftMargin: Theme.space2; verticalCenter: parent.verticalCenter }
                spacing: Theme.space1

                Skeleton { anchors.left: parent.left; width: 88; height: 14 }
                Skeleton { anchors.left: parent.left; width: Math.min(200 + (row.index * 53) % 90, row.width - 260) }
                Skeleton { anchors.left: parent.left; width: Math.min(176, row.width - 280); height: 14 }
            }
            Skeleton {
                anchors { right: parent.right; rightMargin: Theme.targetIcon + Theme.space1; verticalCenter: parent.verticalCenter }
                width: 64
            }
            Hairline {
                anchors.bottom: parent.bottom
                width: parent.width
            }
        }
    }
}
