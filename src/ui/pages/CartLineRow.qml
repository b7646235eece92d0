import QtQuick
import Loomstreet.Components
import Loomstreet.Model
import Loomstreet.Theme

// A line of the cart. While a change of it is on its way it is faded and locked; what stands in it is what the
// platform said last, and the number that was asked for.
FocusScope {
    id: row

    required property int index
    required property string lineId
    required property string handle
    required property string title
    required property string designer
    required property string choice
    required property string picture
    required property int quantity
    required property string price
    required property string formerPrice
    required property bool busy
    required property bool justAdded
    required property string note
    property CartModel cart
    property color backdrop: Theme.surface

    signal opened()

    implicitHeight: content.height + 2 * Theme.space2

    Accessible.role: Accessible.ListItem
    Accessible.name: title + (choice === "" ? "" : ", " + choice) + ", " + price
    Accessible.description: busy ? qsTranslate("Loomstreet", "Busy") : note

    Item {
        id: content

        y: Theme.space2
        width: parent.width
        height: Math.max(thumb.height, words.height + Theme.space1 + controls.height)
        opacity: row.busy ? Theme.alphaDisabled : 1

        Pressable {
            id: thumb

            objectName: "piece"
            anchors.left: parent.left
            width: 72
            height: 96
            locked: row.busy
            accessibleName: row.title
            onClicked: row.opened()

            contentItem: Picture {
                address: row.picture
                backdrop: row.backdrop
                soldOut: row.note !== "" && row.quantity <= 0
            }
            background: Item {
                FocusRing {
                    target: thumb
                    controlRadius: Theme.radiusPicture
                }
            }
        }
        Column {
            id: words

            anchors { left: thumb.right; leftMargin: Theme.space2; right: parent.right }

            Item {
                width: parent.width
                height: Math.max(designerLabel.implicitHeight, added.height)

                TextLabel {
                    id: designerLabel

                    anchors { left: parent.left; right: added.left; rightMargin: Theme.space1; verticalCenter: parent.verticalCenter }
                    text: row.designer
                    type: Theme.type.overline
                    color: Theme.muted
                }
                Row {
                    id: added

                    objectName: "added"
                    anchors { right: parent.right; verticalCenter: parent.verticalCenter }
                    visible: row.justAdded
                    spacing: Theme.spaceHalf

                    Icon {
                        anchors.verticalCenter: parent.verticalCenter
                        name: "checkmark"
                        size: 16
                        color: Theme.success
                    }
                    TextLabel {
                        anchors.verticalCenter: parent.verticalCenter
                        text: qsTranslate("Loomstreet", "Added")
                        type: Theme.type.label
                        color: Theme.success
                    }
                }
            }
            TextLabel {
                objectName: "lineTitle"
                width: parent.width
                text: row.title
                type: Theme.type.body
            }
            TextLabel {
                width: parent.width
                visible: text !== ""
                text: Bidi.isolate(row.choice)
                type: Theme.type.small
                color: Theme.muted
            }
            // Where it does not fit beside the price.
            TextLabel {
                objectName: "formerAbove"
                width: parent.width
                visible: priceLabel.cramped
                text: row.formerPrice
                type: Theme.type.price
                figures: true
                color: Theme.muted
                font.strikeout: true
                font.weight: Font.Normal
                horizontalAlignment: Text.AlignRight
                Accessible.ignored: true
            }
            TextLabel {
                objectName: "note"
                width: parent.width
                visible: text !== ""
                text: row.note
                type: Theme.type.small
                color: Theme.warning
                wrapMode: Text.Wrap
            }
        }
        Item {
            id: controls

            anchors { left: words.left; right: parent.right; bottom: parent.bottom }
            height: stepper.height

            Stepper {
                id: stepper

                objectName: "quantity"
                anchors.left: parent.left
                from: 0
                value: row.quantity
                name: qsTranslate("Loomstreet", "Quantity of %1").arg(row.title)
                onStepped: value => {
                    if (row.busy)
                        return
                    if (value > 0)
                        row.cart.setQuantity(row.lineId, value)
                    else
                        row.cart.remove(row.lineId)
                }
            }
            IconButton {
                objectName: "remove"
                anchors { left: stepper.right; verticalCenter: stepper.verticalCenter }
                iconName: "trash"
                iconSize: 16
                locked: row.busy
                text: qsTranslate("Loomstreet", "Remove from Cart")
                accessibleName: text + ": " + row.title
                onClicked: row.cart.remove(row.lineId)
            }
            PriceLabel {
                id: priceLabel

                anchors { right: parent.right; verticalCenter: stepper.verticalCenter }
                price: row.price
                formerPrice: row.formerPrice
                formerFirst: true
                room: controls.width - stepper.width - Theme.targetIcon - Theme.space2
            }
        }
    }
    // What is locked takes no press.
    MouseArea {
        anchors.fill: parent
        visible: row.busy
    }
    Hairline {
        anchors { left: parent.left; right: parent.right; bottom: parent.bottom }
    }
}
