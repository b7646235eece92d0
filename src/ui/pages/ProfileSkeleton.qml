import QtQuick
import Loomstreet.Components
import Loomstreet.Theme

// The shape of the profile while it is on its way.
Item {
    id: skeleton

    property int padding: Theme.layoutPagePaddingRegular
    property bool narrow: false
    property string title
    property int formWidth: 560

    readonly property real room: Math.min(formWidth, width - 2 * padding)
    readonly property real half: room >= 480 ? (room - Theme.space2) / 2 : room

    component Field: Column {
        id: field

        spacing: 6

        Skeleton {
            anchors.left: field.left
            width: 64
            height: Theme.type.label.line
        }
        Skeleton {
            anchors.left: field.left
            width: field.width
            height: Theme.targetControl
            radius: Theme.radiusControl
        }
    }

    Column {
        id: column

        x: skeleton.padding
        width: skeleton.width - 2 * skeleton.padding
        spacing: Theme.space3

        ListHeader {
            width: column.width
            height: implicitHeight - column.spacing
            narrow: skeleton.narrow
            title: skeleton.title
        }
        Field {
            anchors.left: column.left
            width: skeleton.room
        }
        Flow {
            anchors.left: column.left
            width: skeleton.room
            spacing: Theme.space2

            Field { width: skeleton.half }
            Field { width: skeleton.half }
        }
        Field {
            anchors.left: column.left
            width: skeleton.half
        }
        Skeleton {
            anchors.left: column.left
            width: 72
            height: Theme.targetControl
            radius: Theme.radiusControl
        }
    }
}
