import QtQuick
import Loomstreet.Model
import Loomstreet.Theme

// The pieces below a message, as tall from the start as they will be. One comes at a time, so that many stop nothing,
// and stays for a piece of the next message that is shown here.
Item {
    id: pieces

    property var cards: [] // values of the stylist's
    property bool mine: false // below the shopper's own bubble
    property WishlistStore wishlist

    readonly property int gap: Theme.space1
    // Where each begins, and in the end, where another would.
    readonly property var tops: {
        const tops = [0]
        for (const card of cards)
            tops.push(tops[tops.length - 1] + heightOf(card) + gap)
        return tops
    }
    property int places: 0
    property int made: 0

    signal opened(var card, int mode)
    signal sizesAsked(var card)
    signal anchorAsked(var card)

    function heightOf(card: var): int {
        const type = Theme.type
        const words = (card.vendor !== "" ? type.overline.line : 0) + type.body.line + type.price.line
                      + (card.reason !== "" ? type.caption.line : 0)
        return Math.max(Theme.cardMessageThumb.height, words) + 2 * 9
    }

    height: Math.max(0, tops[tops.length - 1] - gap)
    onCardsChanged: {
        if (cards.length > places) {
            made = 0
            places = cards.length
        }
        if (made < cards.length)
            next.start()
    }

    Timer {
        id: next

        interval: 0
        onTriggered: {
            ++pieces.made
            if (pieces.made < pieces.cards.length)
                start()
        }
    }

    Repeater {
        model: pieces.places

        Loader {
            id: place

            // qmllint disable unqualified
            required property int index
            readonly property var card: pieces.cards[index]

            // The shopper's own stands below their bubble.
            x: pieces.mine === pieces.LayoutMirroring.enabled ? 0 : pieces.width - width
            y: pieces.tops[index] ?? 0
            width: Math.min(pieces.width, 520)
            height: card ? pieces.heightOf(card) : 0
            visible: card !== undefined
            active: index < pieces.made
            sourceComponent: MiraCard {
                card: place.card ?? ({})
                wishlist: pieces.wishlist
                onOpened: mode => pieces.opened(place.card, mode)
                onSizesAsked: pieces.sizesAsked(place.card)
                onAnchorAsked: pieces.anchorAsked(place.card)
            }
            // qmllint enable unqualified

            Rectangle {
                anchors.fill: parent
                visible: !place.active
                radius: Theme.radiusPanel
                color: Theme.surface
                border.width: Theme.strokeHairline
                border.color: Theme.hairline
            }
        }
    }
}
