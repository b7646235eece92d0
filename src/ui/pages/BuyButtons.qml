import QtQuick
import Loomstreet.Components
import Loomstreet.Model
import Loomstreet.Theme

// Into the cart, or at once to the checkout.
Column {
    id: buttons

    property AppModel app
    property ProductModel product
    property WindowSession session

    // Only into the cart.
    property bool brief: false

    readonly property BuyModel buying: app && product ? app.makeBuying(product, product) : null
    readonly property bool isPaying: buying?.isBuying || (paid && app.checkout.isStarting && !app.checkout.isStartingCart)
    property bool paid: false
    // In the place of what cannot be bought.
    readonly property ProductAlerts alerts: app && product ? app.makeProductAlerts(product, product) : null
    readonly property bool restocks: alerts?.offersRestock ?? false
    readonly property bool awaited: restocks && alerts.isRestockSet

    signal added()

    spacing: Theme.space1

    AlertSignIn {
        visible: false
        alerts: buttons.alerts
        session: buttons.session
    }
    Connections {
        target: buttons.buying
        function onAdded(): void { buttons.added() }
        function onCheckoutWanted(): void { buttons.paid = true }
    }

    Item {
        width: parent.width
        height: add.height

        PushButton {
            id: add

            objectName: "addToCart"
            anchors.left: parent.left
            width: parent.width - heart.width - Theme.space1
            kind: buttons.awaited ? "secondary" : "primary"
            on: buttons.awaited
            size: "primary"
            enabled: buttons.restocks || (buttons.buying?.canBuy ?? false)
            busy: buttons.buying?.isAdding ?? false
            iconName: buttons.awaited || buttons.buying?.wasAdded ? "checkmark" : buttons.restocks ? "bell" : ""
            text: buttons.awaited ? qsTranslate("Loomstreet", "We'll email you when it's back")
                : buttons.restocks ? qsTranslate("Loomstreet", "Notify me when it's back")
                : buttons.buying?.wasAdded ? qsTranslate("Loomstreet", "Added")
                : buttons.product?.isSoldOut ? qsTranslate("Loomstreet", "Sold out")
                                             : qsTranslate("Loomstreet", "Add to Cart")
            onClicked: buttons.restocks ? buttons.alerts.toggleRestock() : buttons.buying.add()

            Accessible.checkable: buttons.restocks
            Accessible.checked: buttons.awaited

            HoverToolTip {
                control: add
                text: buttons.awaited && buttons.brief ? qsTranslate("Loomstreet", "Press to withdraw") : "" // else the note says so
            }
        }
        IconButton {
            id: heart

            readonly property bool saved: buttons.app.wishlist.revision >= 0 && buttons.app.wishlist.contains(buttons.product?.handle ?? "")

            objectName: "saveProduct"
            anchors.right: parent.right
            kind: "outlined"
            extent: Math.max(Theme.targetPrimary, Theme.type.control.line + 2 * add.verticalPadding)
            height: add.height
            iconName: saved ? "heart.fill" : "heart"
            color: saved ? Theme.accent : Theme.ink
            enabled: buttons.product?.title !== ""
            text: saved ? qsTranslate("Loomstreet", "Remove from wishlist") : qsTranslate("Loomstreet", "Save to wishlist")
            onClicked: buttons.app.wishlist.toggle(buttons.product.item)

            Accessible.checkable: true
            Accessible.checked: saved
        }
    }
    // As tall as the button in whose place it stands.
    RestockNote {
        objectName: "restockNote"
        width: parent.width
        height: Math.max(buyNow.height, implicitHeight)
        visible: !buttons.brief && buttons.restocks
        alerts: buttons.alerts
    }
    PushButton {
        id: buyNow

        objectName: "buyNow"
        width: parent.width
        visible: !buttons.brief && !buttons.restocks
        size: "primary"
        enabled: buttons.buying?.canBuy ?? false
        busy: buttons.isPaying
        text: busy ? qsTranslate("Loomstreet", "Opening checkout…") : qsTranslate("Loomstreet", "Buy Now")
        onClicked: {
            buttons.paid = false
            buttons.app.checkout.forgetError()
            buttons.buying.buyNow()
        }
    }
    CartNotice {
        objectName: "buyMessage"
        width: parent.width
        sentence: buttons.alerts?.message || buttons.buying?.message || (buttons.paid ? buttons.app.checkout.buyErrorText : "")
        iconName: "warning"
        tone: Theme.danger
    }
}
