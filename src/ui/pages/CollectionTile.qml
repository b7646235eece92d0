import QtQuick
import Loomstreet.Components
import Loomstreet.Theme

// A collection as a picture with its name below.
Pressable {
    id: tile

    property string picture

    readonly property bool pictureSettled: image.ready || image.broken || image.missing

    implicitWidth: Theme.cardMinimumWidth
    implicitHeight: Math.round(width / Theme.cardCollectionTileRatio) + Theme.space1 + name.implicitHeight

    contentItem: Item {
        Picture {
            id: image

            width: parent.width
            height: Math.round(width / Theme.cardCollectionTileRatio)
            ratio: Theme.cardCollectionTileRatio
            address: tile.picture

            FocusRing {
                target: tile
                controlRadius: Theme.radiusPicture
            }
        }
        TextLabel {
            id: name

            anchors { left: parent.left; right: parent.right; top: image.bottom; topMargin: Theme.space1 }
            text: tile.text
            type: Theme.type.panel
            font.underline: tile.hovered
            Accessible.ignored: true
        }
    }
    HoverHandler { cursorShape: Qt.PointingHandCursor }
}
