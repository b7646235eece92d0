pragma ComponentBehavior: Bound
import QtQuick
import Loomstreet.Components
import Loomstreet.Model
import Loomstreet.Theme

// Above the orders: their name, what else can be done, and which of them are shown.
Item {
    id: header

    property OrdersModel orders: null
    property bool awaiting: false // an order that was placed a moment ago
    property bool narrow: false
    property bool listed: false // there are orders
    property string title

    signal trackingAsked()
    signal returnsAsked()

    implicitHeight: column.height + Theme.space1_5

    Column {
        id: column

        width: parent.width

        ListHeader {
            width: parent.width
            narrow: header.narrow
            title: header.title

            PushButton {
                objectName: "showHidden"
                visible: header.listed && (header.orders?.hiddenCount ?? 0) > 0
                size: "small"
                kind: "quiet"
                iconName: "eye.slash"
                checkable: true
                checked: header.orders?.showsHidden ?? false
                on: checked
                text: qsTranslate("Loomstreet", "Hidden", "orders.hidden") + "  ·  " + (header.orders?.hiddenCount ?? 0)
                onClicked: header.orders.showsHidden = !header.orders.showsHidden
            }
            PushButton {
                objectName: "track"
                size: "small"
                kind: "quiet"
                iconName: "truck"
                text: qsTranslate("Loomstreet", "Track a package")
                onClicked: header.trackingAsked()
            }
            PushButton {
                objectName: "returns"
                visible: header.listed
                size: "small"
                kind: "quiet"
                iconName: "return"
                text: qsTranslate("Loomstreet", "Returns")
                onClicked: header.returnsAsked()
            }
        }
        Flow {
            width: parent.width
            visible: header.listed
            spacing: Theme.space1

            Accessible.role: Accessible.Grouping
            Accessible.name: qsTranslate("Loomstreet", "Which orders")

            Repeater {
                model: [qsTranslate("Loomstreet", "All"), qsTranslate("Loomstreet", "On the way", "orders.filter"),
                        qsTranslate("Loomstreet", "Delivered", "orders.filter"), qsTranslate("Loomstreet", "Returns & refunds")]

                Chip {
                    required property int index
                    required property string modelData

                    objectName: "tab" + index
                    text: modelData
                    selected: index === header.orders?.tab
                    onClicked: header.orders.tab = index

                    Accessible.role: Accessible.RadioButton
                    Accessible.checkable: true
                }
            }
        }
        Item {
            width: parent.width
            height: note.height + Theme.space1_5
            visible: header.awaiting

            Icon {
                id: sign

                anchors { left: parent.left; verticalCenter: note.verticalCenter }
                name: "clock"
                size: 16
                color: Theme.accent
            }
            TextLabel {
                id: note

                objectName: "awaiting"
                anchors { left: sign.right; leftMargin: Theme.space1; right: parent.right; top: parent.top; topMargin: Theme.space1_5 }
                text: qsTranslate("Loomstreet", "Your new order shows here in a few minutes.")
                type: Theme.type.small
                color: Theme.accent
                wrapMode: Text.Wrap
            }
        }
    }
}
