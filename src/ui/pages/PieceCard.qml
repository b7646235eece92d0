import QtQuick
import Loomstreet.Components
import Loomstreet.Model
import Loomstreet.Theme

// A card bound to a row of a list of products.
ProductCard {
    id: card

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

    // Where its heart keeps it; without one there is no heart.
    property WishlistStore wishlist: null
    // Pieces are being chosen: a press chooses this one or not.
    property bool picking: false
    property bool picked: false
    // It can be taken out of its list.
    property bool removable: false
    property string removeText: qsTranslate("Loomstreet", "Remove from the list")

    signal opened(string handle, var item, int mode)
    signal pickToggled(string handle)
    signal removeAsked(string handle, string title)

    objectName: "card." + handle
    activeFocusOnTab: false // one card of a list is a stop, and the arrows move on from it
    dotPictures: colourPictures
    canSave: wishlist !== null && !picking
    // Asked anew whenever the list changes.
    saved: wishlist !== null && wishlist.revision >= 0 && wishlist.contains(handle)
    onSaveToggled: wishlist.toggle(item)
    onActivated: modifiers => {
        if (picking) {
            card.pickToggled(card.handle)
            return
        }
        const inTab = (modifiers & Qt.ControlModifier) !== 0
        card.opened(card.handle, card.item, inTab ? OpenModes.NewTab : OpenModes.Automatic)
    }
    onHoveredChanged: {
        if (hovered)
            PicturePrefetch.expect(pictures)
        else
            PicturePrefetch.forget(pictures)
    }
    onOpenFull: card.opened(card.handle, card.item, OpenModes.Page)

    Accessible.checkable: picking
    Accessible.checked: picked

    // Made when the first is chosen: most cards never need it.
    Loader {
        anchors { right: parent.right; top: parent.top; margins: Theme.space1 }
        active: card.picking
        source: "PickMark.qml"
        onLoaded: item.picked = Qt.binding(() => card.picked)
    }
    Loader {
        anchors { right: parent.right; top: parent.top; rightMargin: Theme.space1; topMargin: 2 * Theme.space1 + Theme.targetIcon }
        active: card.removable && !card.picking && card.lively
        sourceComponent: RemoveButton {
            text: card.removeText // qmllint disable unqualified
            onClicked: card.removeAsked(card.handle, card.title) // qmllint disable unqualified
        }
    }
}
