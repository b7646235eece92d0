import QtQuick
import Loomstreet.Components
import Loomstreet.Theme

// One of the shopper's orders that the stylist speaks of, and the way to it.
Pressable {
    id: control

    property var order: ({}) // id, name, status

    text: qsTranslate("Loomstreet", "Order %1").arg(Bidi.isolate(order.name ?? ""))
    accessibleName: text + ", " + (order.status ?? "")
    horizontalPadding: Theme.space1_5
    verticalPadding: Theme.space1_5

    contentItem: Item {
        implicitHeight: Math.max(disc.height, words.height)

        IconDisc {
            id: disc

            anchors { left: parent.left; verticalCenter: parent.verticalCenter }
            iconName: "shippingbox"
        }
        Column {
            id: words

            anchors { left: disc.right; leftMargin: Theme.space1_5; right: ahead.left; rightMargin: Theme.space1; verticalCenter: parent.verticalCenter }

            TextLabel {
                width: parent.width
                text: control.text
                type: Theme.type.bodyStrong
                figures: true
                Accessible.ignored: true
            }
            TextLabel {
                width: parent.width
                visible: text !== ""
                text: control.order.status ?? ""
                type: Theme.type.small
                color: Theme.muted
                Accessible.ignored: true
            }
        }
        Icon {
            id: ahead

            anchors { right: parent.right; verticalCenter: parent.verticalCenter }
            name: "chevron.right"
            size: 16
            color: Theme.muted
        }
    }
    background: Rectangle {
        radius: Theme.radiusPanel
        color: control.down ? Theme.pressed : control.hovered ? Theme.hover : Theme.surface
        border.width: Theme.strokeHairline
        border.color: Theme.hairline

        FocusRing {
            target: control
            controlRadius: parent.radius
        }
    }
}
