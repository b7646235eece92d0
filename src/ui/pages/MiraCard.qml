import QtQuick
import Loomstreet.Components
import Loomstreet.Model
import Loomstreet.Theme

// A piece that the stylist shows: what it is and costs now, its heart, and the way to its sizes and into the cart.
FocusScope {
    id: row

    property var card: ({}) // a value of the stylist's
    property WishlistStore wishlist

    readonly property string handle: card.handle ?? ""
    readonly property bool isLive: card.isLive ?? false
    readonly property bool soldOut: card.isSoldOut ?? false
    readonly property bool saved: wishlist.revision >= 0 && wishlist.contains(handle)
    readonly property var said: [card.vendor, card.title, prices.sentence, soldOut ? soldOutLabel.text : "", card.reason]

    signal opened(int mode)
    signal sizesAsked()
    signal anchorAsked()

    Pressable {
        id: control

        readonly property color ground: down ? Theme.pressed : hovered ? Theme.hover : Theme.surface

        objectName: "miraCard." + row.handle
        anchors.fill: parent
        focus: true
        accessibleName: row.said.filter(text => (text ?? "") !== "").join(", ")
        onClicked: row.opened(OpenModes.Automatic)

        background: Rectangle {
            radius: Theme.radiusPanel
            color: control.ground
            border.width: Theme.strokeHairline
            border.color: Theme.hairline

            FocusRing {
                target: control
                controlRadius: parent.radius
            }
        }
        HoverHandler { cursorShape: Qt.PointingHandCursor }
        TapHandler {
            acceptedButtons: Qt.MiddleButton
            onTapped: row.opened(OpenModes.NewTab)
        }
    }
    Picture {
        id: thumb

        anchors { left: parent.left; leftMargin: 9; verticalCenter: parent.verticalCenter }
        width: Theme.cardMessageThumb.width
        height: Theme.cardMessageThumb.height
        enabled: false
        address: row.card.image ?? ""
        soldOut: row.soldOut
        backdrop: control.ground
    }
    Column {
        id: words

        anchors { left: thumb.right; leftMargin: Theme.space1_5; right: buttons.left; rightMargin: Theme.space1; verticalCenter: parent.verticalCenter }
        enabled: false

        TextLabel {
            width: parent.width
            visible: text !== ""
            text: row.card.vendor ?? ""
            type: Theme.type.overline
            color: Theme.muted
            Accessible.ignored: true
        }
        TextLabel {
            objectName: "title"
            width: parent.width
            text: row.card.title ?? ""
            Accessible.ignored: true
        }
        Item {
            width: parent.width
            height: Theme.type.price.line

            PriceLabel {
                id: prices

                anchors.left: parent.left
                price: row.card.priceText ?? ""
                formerPrice: row.card.formerPriceText ?? ""
                room: words.width - (row.soldOut ? soldOutLabel.implicitWidth + Theme.space1 : 0)
                Accessible.ignored: true
            }
            TextLabel {
                id: soldOutLabel

                anchors { left: prices.right; leftMargin: Theme.space1; right: parent.right; verticalCenter: parent.verticalCenter }
                visible: row.soldOut
                text: qsTranslate("Loomstreet", "Sold out")
                type: Theme.type.small
                color: Theme.muted
                Accessible.ignored: true
            }
        }
        TextLabel {
            objectName: "reason"
            width: parent.width
            visible: text !== ""
            text: row.card.reason ?? ""
            type: Theme.type.caption
            color: Theme.accent
            Accessible.ignored: true
        }
    }
    // What the catalog does not know can be neither kept nor bought; its place stays, so that nothing moves.
    Item {
        id: buttons

        anchors { right: parent.right; rightMargin: 9; verticalCenter: parent.verticalCenter }
        width: 3 * Theme.targetIcon + 2 * Theme.spaceHalf
        height: Theme.targetIcon

        IconButton {
            objectName: "anchor"
            anchors.left: parent.left
            visible: row.isLive
            iconName: "hanger"
            text: qsTranslate("Loomstreet", "Build a look around it")
            accessibleName: text + ": " + row.card.title
            onClicked: row.anchorAsked()
        }
        IconButton {
            objectName: "heart"
            anchors.horizontalCenter: parent.horizontalCenter
            visible: row.isLive && row.card.item !== undefined
            iconName: row.saved ? "heart.fill" : "heart"
            color: row.saved ? Theme.accent : Theme.ink
            text: row.saved ? qsTranslate("Loomstreet", "Remove from wishlist") : qsTranslate("Loomstreet", "Save to wishlist")
            accessibleName: text + ": " + row.card.title
            onClicked: row.wishlist.toggle(row.card.item)

            Accessible.checkable: true
            Accessible.checked: row.saved
        }
        IconButton {
            objectName: "buy"
            anchors.right: parent.right
            visible: row.isLive && !row.soldOut
            iconName: "bag"
            text: qsTranslate("Loomstreet", "Choose a size and add to cart")
            accessibleName: text + ": " + row.card.title
            onClicked: row.sizesAsked()
        }
    }
}
