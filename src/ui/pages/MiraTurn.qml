pragma ComponentBehavior: Bound
import QtQuick
import Loomstreet.Components
import Loomstreet.Model
import Loomstreet.Theme

// A message of the conversation with the stylist and what belongs to it: the pieces she shows, the way to all of them
// as a look, an order, the measurements she asks for.
ChatBubble {
    id: turn

    // Of the thread; a role of it is called as a property of every item is.
    required property var model
    property MiraChatModel mira
    property WishlistStore wishlist

    readonly property var cards: model.cards ?? []
    readonly property var order: model.order
    // Those of which a size can be chosen.
    readonly property var look: cards.filter(card => card.isLive && !card.isSoldOut).map(card => card.handle)

    signal pieceOpened(var card, int mode)
    signal lookAsked(var handles)
    signal anchorAsked(var card)
    signal measurementsAsked()
    signal orderOpened(string id)

    mine: model.isMine
    text: model.text
    sentences: model.sentences ?? []
    timeLabel: model.timeLabel
    heading: model.dayLabel === "" ? "" : model.timeLabel === "" ? model.dayLabel : model.dayLabel + ", " + Bidi.isolate(model.timeLabel)
    speaker: mine ? qsTranslate("Loomstreet", "You") : mira.guideName
    sending: model.state === MiraThreadModel.Sending
    problem: model.state === MiraThreadModel.Unconfirmed ? mira.unconfirmedNote : ""
    onRetryAsked: mira.retryMessage(model.key)
    onRemoveAsked: mira.discardMessage(model.key)

    extras: [
        Repeater {
            model: turn.cards

            MiraCard {
                required property var modelData

                // The shopper's own stands below their bubble.
                anchors { left: turn?.mine ? undefined : parent?.left; right: turn?.mine ? parent?.right : undefined }
                width: Math.min(turn.width, 520)
                card: modelData
                wishlist: turn.wishlist
                onOpened: mode => turn.pieceOpened(modelData, mode)
                onSizesAsked: turn.lookAsked([modelData.handle])
                onAnchorAsked: turn.anchorAsked(modelData)
            }
        },
        Item {
            width: turn.width
            height: lookButton.height
            visible: !turn.mine && turn.look.length > 1

            PushButton {
                id: lookButton

                objectName: "look"
                anchors.left: parent.left
                size: "small"
                iconName: "bag"
                text: qsTranslate("Loomstreet", "Add to Cart")
                accessibleName: text + ": " + lookNote.text
                onClicked: turn.lookAsked(turn.look)
            }
            TextLabel {
                id: lookNote

                anchors { left: lookButton.right; leftMargin: Theme.space1; right: parent.right; verticalCenter: parent.verticalCenter }
                text: qsTranslate("Loomstreet", "See the look: %1 pieces, each in your size").arg(turn.look.length)
                type: Theme.type.caption
                color: Theme.muted
                wrapMode: Text.Wrap
                maximumLineCount: 2
                Accessible.ignored: true
            }
        },
        MiraOrder {
            anchors.left: parent?.left
            width: Math.min(turn.width, 520)
            visible: turn.order !== undefined
            order: turn.order ?? ({})
            onClicked: turn.orderOpened(order.id)
        },
        PushButton {
            objectName: "measurements"
            anchors.left: parent?.left
            visible: !turn.mine && turn.model.asksMeasurements
            size: "small"
            iconName: "ruler"
            text: qsTranslate("Loomstreet", "Enter my measurements")
            onClicked: turn.measurementsAsked()
        }
    ]
}
