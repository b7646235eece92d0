import QtQuick
import Loomstreet.Components
import Loomstreet.Model

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
    readonly property bool offersLook: !mine && look.length > 1
    readonly property bool asksMeasurements: !mine && model.asksMeasurements

    readonly property real lookTop: cards.length > 0 ? pieces.height + gap : 0
    readonly property real orderTop: lookTop + (offersLook ? lookOffer.height + gap : 0)
    readonly property real measurementsTop: orderTop + (order ? orderPlace.height + gap : 0)

    signal pieceOpened(var card, int mode)
    signal lookAsked(var handles)
    signal anchorAsked(var card)
    signal measurementsAsked()
    signal orderOpened(string id)

    mine: model.isMine
    text: model.text
    sentences: model.sentences ?? []
    timeLabel: model.timeLabel
    heading: headingOf(model.dayLabel, model.timeLabel)
    speaker: mine ? qsTranslate("Loomstreet", "You") : mira.guideName
    sending: model.state === MiraThreadModel.Sending
    problem: model.state === MiraThreadModel.Unconfirmed ? mira.unconfirmedNote : ""
    onRetryAsked: mira.retryMessage(model.key)
    onRemoveAsked: mira.discardMessage(model.key)

    extrasHeight: Math.max(0, measurementsTop + (asksMeasurements ? measurements.height : -gap))
    extras: [
        MiraPieces {
            id: pieces

            width: turn.width
            cards: turn.cards
            mine: turn.mine
            wishlist: turn.wishlist
            onOpened: (card, mode) => turn.pieceOpened(card, mode)
            onSizesAsked: card => turn.lookAsked([card.handle])
            onAnchorAsked: card => turn.anchorAsked(card)
        },
        Loader {
            id: lookOffer

            y: turn.lookTop
            width: turn.width
            active: turn.offersLook
            sourceComponent: MiraLookOffer {
                pieces: turn.look.length // qmllint disable unqualified
                onAsked: turn.lookAsked(turn.look) // qmllint disable unqualified
            }
        },
        Loader {
            id: orderPlace

            anchors.left: parent?.left
            y: turn.orderTop
            width: Math.min(turn.width, 520)
            active: turn.order !== undefined
            sourceComponent: MiraOrder {
                order: turn.order ?? ({}) // qmllint disable unqualified
                onClicked: turn.orderOpened(order.id) // qmllint disable unqualified
            }
        },
        Loader {
            id: measurements

            anchors.left: parent?.left
            y: turn.measurementsTop
            active: turn.asksMeasurements
            sourceComponent: PushButton {
                objectName: "measurements"
                size: "small"
                iconName: "ruler"
                text: qsTranslate("Loomstreet", "Enter my measurements")
                onClicked: turn.measurementsAsked() // qmllint disable unqualified
            }
        }
    ]
}
