import QtQuick
import Loomstreet.Components
import Loomstreet.Model
import Loomstreet.Theme

// How far the cart is from free delivery: words above a thin bar.
Column {
    id: shipping

    property CartModel cart

    spacing: Theme.space1
    visible: cart.hasShipping

    Item {
        width: parent.width
        height: Math.max(words.implicitHeight, check.height)

        Icon {
            id: check

            anchors { left: parent.left; verticalCenter: parent.verticalCenter }
            width: visible ? implicitWidth : 0
            visible: shipping.cart.isShippingFree
            name: "checkmark"
            size: 16
            color: Theme.success
        }
        TextLabel {
            id: words

            objectName: "shippingText"
            anchors { left: check.right; leftMargin: check.visible ? Theme.space1 : 0; right: goal.left; rightMargin: Theme.space1; verticalCenter: parent.verticalCenter }
            text: shipping.cart.shippingText
            type: Theme.type.control
            font.weight: Font.Normal
            wrapMode: Text.Wrap
            maximumLineCount: 3
        }
        TextLabel {
            id: goal

            anchors { right: parent.right; verticalCenter: parent.verticalCenter }
            text: shipping.cart.isShippingFree ? "" : shipping.cart.shippingThreshold
            type: Theme.type.small
            figures: true
            color: Theme.muted
        }
    }
    Meter {
        objectName: "shippingBar"
        width: parent.width
        value: shipping.cart.shippingFraction
        name: shipping.cart.shippingText
    }
}
