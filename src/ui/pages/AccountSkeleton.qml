pragma ComponentBehavior: Bound
import QtQuick
import Loomstreet.Components
import Loomstreet.Theme

// The account before it is known whose it is.
Column {
    id: skeleton

    spacing: Theme.space5

    Column {
        width: parent.width
        spacing: Theme.space1_5

        Skeleton {
            anchors.left: parent.left
            width: 280
            height: 32
        }
        Skeleton {
            anchors.left: parent.left
            width: 200
        }
    }
    Repeater {
        model: 3

        Column {
            width: skeleton.width
            spacing: Theme.space2

            Skeleton {
                anchors.left: parent.left
                width: 96
            }
            Row {
                id: row

                readonly property int columns: Math.max(1, Math.min(4, Math.floor(skeleton.width / 284)))

                anchors.left: parent.left
                spacing: Theme.space3

                Repeater {
                    model: row.columns

                    Skeleton {
                        width: (skeleton.width - (row.columns - 1) * row.spacing) / row.columns
                        height: 52
                    }
                }
            }
        }
    }
}
