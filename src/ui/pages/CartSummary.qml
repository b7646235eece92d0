pragma ComponentBehavior: Bound
import QtQuick
import Loomstreet.Components
import Loomstreet.Model
import Loomstreet.Theme

// What the cart comes to, and the way to pay for it.
Column {
    id: summary

    property AppModel app
    property WindowSession session

    readonly property CartModel cart: app.cart
    readonly property CheckoutStarter checkout: app.checkout

    signal shoppingContinued()

    spacing: Theme.space1_5

    component Line: Item {
        property string name
        property string amount
        property bool strong: false

        width: parent?.width ?? 0
        implicitHeight: Math.max(nameLabel.implicitHeight, amountLabel.implicitHeight)
        visible: amount !== ""

        Accessible.role: Accessible.StaticText
        Accessible.name: name + " " + amount

        TextLabel {
            id: nameLabel

            anchors { left: parent.left; right: amountLabel.left; rightMargin: Theme.space1; baseline: amountLabel.baseline }
            text: parent.name
            type: Theme.type.control
            font.weight: parent.strong ? Font.DemiBold : Font.Normal
            color: parent.strong ? Theme.ink : Theme.muted
            Accessible.ignored: true
        }
        TextLabel {
            id: amountLabel

            anchors.right: parent.right
            text: parent.amount
            type: parent.strong ? Theme.type.total : Theme.type.control
            font.weight: parent.strong ? Font.DemiBold : Font.Normal
            figures: true
            elide: Text.ElideNone
            Accessible.ignored: true
        }
    }

    CartDiscount {
        width: parent.width
        cart: summary.cart
    }
    Column {
        width: parent.width
        spacing: Theme.spaceHalf

        Line {
            objectName: "subtotal"
            name: qsTranslate("Loomstreet", "Subtotal")
            amount: summary.cart.subtotal
        }
        Line {
            objectName: "discount"
            name: qsTranslate("Loomstreet", "Discount")
            amount: summary.cart.discount
        }
        Line {
            objectName: "total"
            name: qsTranslate("Loomstreet", "Total")
            amount: summary.cart.total
            strong: true
        }
    }
    TextLabel {
        width: parent.width
        text: qsTranslate("Loomstreet", "Import duties included · Shipping calculated at checkout")
        type: Theme.type.small
        color: Theme.muted
        wrapMode: Text.Wrap
    }
    CartNotice {
        objectName: "checkoutError"
        width: parent.width
        sentence: summary.checkout.cartErrorText
        iconName: "warning"
        tone: Theme.danger
    }
    PushButton {
        objectName: "checkout"
        width: parent.width
        kind: "primary"
        size: "primary"
        iconName: "lock"
        busy: summary.checkout.isStartingCart
        text: busy ? qsTranslate("Loomstreet", "Opening checkout…") : qsTranslate("Loomstreet", "Checkout")
        onClicked: summary.session.checkOut(summary.cart.checkoutURL)
    }
    TextLabel {
        objectName: "paying"
        width: parent.width
        visible: summary.checkout.isPayingCart
        text: qsTranslate("Loomstreet", "Finish paying in the checkout window. Your cart stays as it is.")
        type: Theme.type.small
        color: Theme.muted
        wrapMode: Text.Wrap
        horizontalAlignment: Text.AlignHCenter
    }
    LinkButton {
        objectName: "continue"
        anchors.horizontalCenter: parent.horizontalCenter
        text: qsTranslate("Loomstreet", "Continue Shopping")
        onClicked: summary.shoppingContinued()
    }
}
