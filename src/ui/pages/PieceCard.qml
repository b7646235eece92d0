import Loomstreet.Components

// A card bound to a row of a list of products.
ProductCard {
    id: card

    required property int index
    required property var item
    required property string handle
    required property var colourPictures
    required designer
    required title
    required price
    required formerPrice
    required pictures
    required label
    required soldOut
    required reason

    signal opened(string handle, var item, int modifiers)

    objectName: "card." + handle
    activeFocusOnTab: false // one card of a list is a stop, and the arrows move on from it
    dotPictures: colourPictures
    onActivated: modifiers => card.opened(card.handle, card.item, modifiers)
    onOpenFull: card.opened(card.handle, card.item, 0)
}
