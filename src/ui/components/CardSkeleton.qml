import QtQuick
import Loomstreet.Theme

// A card that is still coming: the same shapes at the same places.
Item {
    id: card

    readonly property int pictureHeight: Math.round(width / Theme.cardPictureRatio)

    component Line: Item {
        property TypeStyle type
        property real share: 0.5

        width: parent.width
        height: type.line

        Skeleton {
            anchors { left: parent.left; verticalCenter: parent.verticalCenter }
            width: Math.round(parent.width * parent.share)
            height: parent.type.size
        }
    }

    implicitWidth: Theme.cardMinimumWidth
    implicitHeight: pictureHeight + Theme.cardTextGap + words.height

    Accessible.ignored: true

    Skeleton {
        width: parent.width
        height: card.pictureHeight
        radius: Theme.radiusPicture
    }
    Column {
        id: words

        y: card.pictureHeight + Theme.cardTextGap
        width: parent.width
        spacing: 1

        Line { type: Theme.type.overline; share: 0.45 }
        Line { type: Theme.type.body; share: 0.85 }
        Line { type: Theme.type.price; share: 0.32 }
        Item { width: 1; height: Theme.type.caption.line + 3 }
    }
}
