pragma ComponentBehavior: Bound
import QtQuick
import Loomstreet.Components
import Loomstreet.Model
import Loomstreet.Theme

// What an order came to, where it goes, and the way to send something of it back.
Column {
    id: summary

    property OrderModel order: null

    signal returnAsked()

    spacing: Theme.space3

    component Line: Item {
        property string name
        property string amount
        property bool strong: false

        width: parent?.width ?? 0
        implicitHeight: Math.max(nameLabel.implicitHeight, amountLabel.implicitHeight)

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
    component Heading: Overline {
        width: parent?.width ?? 0
        bottomPadding: -topPadding + Theme.spaceHalf
        color: Theme.muted
        Accessible.role: Accessible.Heading
    }

    Column {
        width: parent.width
        spacing: Theme.spaceHalf

        Heading { words: qsTranslate("Loomstreet", "Summary") }
        Repeater {
            model: summary.order?.sums ?? []

            Line {
                required property var modelData

                name: modelData.name
                amount: modelData.amount
            }
        }
        Line {
            objectName: "total"
            height: implicitHeight + Theme.spaceHalf
            name: qsTranslate("Loomstreet", "Total")
            amount: summary.order?.total ?? ""
            strong: true
        }
    }
    Column {
        width: parent.width
        visible: address.text !== ""

        Heading { words: qsTranslate("Loomstreet", "Delivery address") }
        TextLabel {
            id: address

            objectName: "address"
            width: parent.width
            text: summary.order?.address ?? ""
            wrapMode: Text.Wrap
        }
    }
    PushButton {
        objectName: "return"
        anchors.left: parent.left
        width: Math.min(parent.width, 304)
        visible: summary.order?.canReturn ?? false
        iconName: "return"
        text: qsTranslate("Loomstreet", "Start a return")
        onClicked: summary.returnAsked()
    }
}
