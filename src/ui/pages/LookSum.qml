import QtQuick
import Loomstreet.Components
import Loomstreet.Model
import Loomstreet.Theme

// What a look comes to, and the way to it: first into the cart, then to the checkout.
Item {
    id: sum

    property MiraLookModel look
    property int padding: Theme.space4
    property bool stacked: false

    signal shoppingContinued()

    implicitHeight: column.height + 2 * Theme.space2

    Hairline { anchors { left: parent.left; right: parent.right } }
    Column {
        id: column

        anchors { left: parent.left; right: parent.right; leftMargin: sum.padding; rightMargin: sum.padding }
        y: Theme.space2
        spacing: Theme.space1

        // Above the rest where there is no room beside it.
        LookTrouble {
            width: parent.width
            look: sum.stacked ? sum.look : null
        }
        Item {
            width: parent.width
            height: Math.max(words.height, sum.stacked ? 0 : action.height, beside.height)

            Column {
                id: words

                anchors { left: parent.left; verticalCenter: parent.verticalCenter }
                width: sum.stacked ? parent.width : Math.max(prices.parent.width, 160)

                Row {
                    anchors.left: parent.left
                    spacing: Theme.space1

                    TextLabel {
                        anchors { bottom: prices.bottom; bottomMargin: 3 }
                        text: qsTranslate("Loomstreet", "Total")
                        type: Theme.type.control
                        color: Theme.muted
                        Accessible.ignored: true
                    }
                    PriceLabel {
                        id: prices

                        objectName: "lookTotal"
                        price: sum.look.total === "" ? "–" : sum.look.total
                        formerPrice: sum.look.formerTotal
                        type: Theme.type.total

                        Accessible.name: qsTranslate("Loomstreet", "Total") + " " + sentence
                    }
                }
                TextLabel {
                    objectName: "lookCount"
                    width: parent.width
                    text: sum.look.pieces === sum.look.count
                          ? qsTranslate("Loomstreet", "%Ln pieces", "", sum.look.count)
                          : qsTranslate("Loomstreet", "%L1 of %Ln pieces", "", sum.look.count).arg(sum.look.pieces)
                    type: Theme.type.small
                    color: Theme.muted
                }
            }
            LookTrouble {
                id: beside

                anchors { left: words.right; leftMargin: Theme.space3; right: ways.left; rightMargin: Theme.space2; verticalCenter: parent.verticalCenter }
                look: sum.stacked ? null : sum.look
            }
            Row {
                id: ways

                anchors { right: parent.right; verticalCenter: parent.verticalCenter }
                visible: !sum.stacked
                spacing: Theme.space3

                LinkButton {
                    objectName: "continueLook"
                    anchors.verticalCenter: parent.verticalCenter
                    visible: sum.look.isInCart && !beside.visible
                    text: qsTranslate("Loomstreet", "Continue Shopping")
                    onClicked: sum.shoppingContinued()
                }
                // Keeps its place for the button, which stands below in a narrow window.
                Item {
                    id: slot

                    width: Math.max(sum.width < 760 ? 200 : 240, action.implicitWidth)
                    height: action.height
                }
            }
        }
        Item {
            width: parent.width
            height: action.height
            visible: sum.stacked
        }
    }
    // One button, so that the focus stays while it leads on.
    PushButton {
        id: action

        readonly property bool paying: sum.look.isInCart

        objectName: "lookAction"
        anchors { right: parent.right; bottom: parent.bottom; rightMargin: sum.padding; bottomMargin: Theme.space2 }
        width: sum.stacked ? sum.width - 2 * sum.padding : slot.width
        kind: "primary"
        size: "primary"
        iconName: paying ? "lock" : "bag"
        enabled: paying || sum.look.canAdd || busy
        busy: sum.look.isAdding || sum.look.isStartingCheckout
        locked: busy || settling.running
        text: sum.look.isStartingCheckout ? qsTranslate("Loomstreet", "Opening checkout…")
              : paying ? qsTranslate("Loomstreet", "Checkout") : qsTranslate("Loomstreet", "Add to Cart")
        onPayingChanged: if (paying) settling.restart()
        onClicked: paying ? sum.look.startCheckout() : sum.look.add()
    }
    // A second click of two is not meant for what the first one led to.
    Timer {
        id: settling

        interval: 500
    }
}
