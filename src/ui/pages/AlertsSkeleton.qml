pragma ComponentBehavior: Bound
import QtQuick
import Loomstreet.Components
import Loomstreet.Theme

// The shape of the alerts while they are on their way.
Item {
    id: skeleton

    property int padding: Theme.layoutPagePaddingRegular
    property bool narrow: false
    property string title
    property int rowWidth: 760

    Column {
        x: skeleton.padding
        width: skeleton.width - 2 * skeleton.padding

        ListHeader {
            width: parent.width
            height: implicitHeight - Theme.space1_5
            narrow: skeleton.narrow
            title: skeleton.title
        }
        Item {
            width: parent.width
            height: Theme.type.body.line + Theme.space2 + 1

            Skeleton {
                anchors.left: parent.left
                y: Math.round((Theme.type.body.line - height) / 2)
                width: Math.min(420, parent.width)
            }
        }
        Repeater {
            model: 3

            Item {
                anchors.left: parent?.left
                width: Math.min(skeleton.rowWidth, parent?.width ?? 0)
                height: 96 + 2 * Theme.space2

                Skeleton {
                    id: thumb

                    y: Theme.space2
                    anchors.left: parent.left
                    width: 72
                    height: 96
                    radius: Theme.radiusPicture
                }
                Column {
                    id: words

                    anchors { left: thumb.right; leftMargin: Theme.space2; top: thumb.top; right: parent.right }
                    spacing: Theme.space1

                    Skeleton { anchors.left: words.left; width: 96; height: 12 }
                    Skeleton { anchors.left: words.left; width: 220 }
                    Skeleton { anchors.left: words.left; width: 72; height: 12 }
                    Skeleton { anchors.left: words.left; width: 120 }
                }
            }
        }
    }
}
