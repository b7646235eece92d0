import QtQuick
import Loomstreet.Components
import Loomstreet.Theme

// A return of an order, and the money that comes back.
Item {
    id: row

    required property var modelData
    readonly property string facts: Bidi.joined([modelData.date, Bidi.isolate(modelData.rmaNo), modelData.reason])

    implicitHeight: words.implicitHeight + 2 * Theme.space2 + Theme.strokeHairline

    Accessible.role: Accessible.StaticText
    Accessible.name: [modelData.status, modelData.amount, facts].filter(text => text !== "").join(", ")

    IconDisc {
        id: disc

        anchors { left: parent.left; verticalCenter: parent.verticalCenter }
        iconName: "return"
        tone: row.modelData.tone
    }
    Column {
        id: words

        anchors { left: disc.right; leftMargin: Theme.space2; right: amount.left; rightMargin: Theme.space2; verticalCenter: parent.verticalCenter }
        spacing: 2

        TextLabel {
            width: parent.width
            text: row.modelData.status
            type: Theme.type.label
            Accessible.ignored: true
        }
        TextLabel {
            width: parent.width
            text: row.facts
            type: Theme.type.small
            figures: true
            color: Theme.muted
            wrapMode: Text.Wrap
            Accessible.ignored: true
        }
    }
    TextLabel {
        id: amount

        anchors { right: parent.right; verticalCenter: parent.verticalCenter }
        text: row.modelData.amount
        type: Theme.type.price
        figures: true
        elide: Text.ElideNone
        Accessible.ignored: true
    }
    Hairline {
        anchors { left: parent.left; right: parent.right; bottom: parent.bottom }
    }
}
