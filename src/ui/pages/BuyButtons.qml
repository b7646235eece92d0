import QtQuick
import Loomstreet.Components
import Loomstreet.Model
import Loomstreet.Theme

// Into the cart, or at once to the checkout.
Column {
    id: buttons

    property AppModel app
    property ProductModel product

    readonly property BuyModel buying: app && product ? app.makeBuying(buttons, product) : null
    readonly property bool isPaying: buying?.isBuying || (paid && app.checkout.isStarting && !app.checkout.isStartingCart)
    property bool paid: false

    signal added()

    spacing: Theme.space1

    Connections {
        target: buttons.buying
        function onAdded(): void { buttons.added() }
        function onCheckoutWanted(): void { buttons.paid = true }
    }

    PushButton {
        objectName: "addToCart"
        width: parent.width
        kind: "primary"
        size: "primary"
        enabled: buttons.buying?.canBuy ?? false
        busy: buttons.buying?.isAdding ?? false
        iconName: buttons.buying?.wasAdded ? "checkmark" : ""
        text: buttons.buying?.wasAdded ? qsTranslate("Loomstreet", "Added")
            : buttons.product?.isSoldOut ? qsTranslate("Loomstreet", "Sold out")
                                         : qsTranslate("Loomstreet", "Add to Cart")
        onClicked: buttons.buying.add()
    }
    PushButton {
        objectName: "buyNow"
        width: parent.width
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
        sentence: buttons.buying?.message || (buttons.paid ? buttons.app.checkout.buyErrorText : "")
        iconName: "warning"
        tone: Theme.danger
    }
}
