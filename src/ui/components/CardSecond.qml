import QtQuick
import Loomstreet.Theme

// A card's second picture, over its first while the pointer is there.
Picture {
    required property ProductCard card

    address: card.pictures[1] ?? ""
    soldOut: card.soldOut
    backdrop: card.backdrop
    opacity: card.hovered && ready ? 1 : 0
    visible: opacity > 0

    Behavior on opacity { NumberAnimation { duration: Theme.durationPictureSwap } }
}
