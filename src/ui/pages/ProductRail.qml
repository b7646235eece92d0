pragma ComponentBehavior: Bound
import QtQuick
import Loomstreet.Components
import Loomstreet.Model
import Loomstreet.Theme

// A row of cards under a title: whole cards only, paged by as many as are in view.
Column {
    id: rail

    property var products: null // a model with the roles of a PieceCard
    // The first of them are on their way.
    property bool waiting: false
    // Its cards are made; where it is far from what is looked at they need not be.
    property bool near: true
    property string title
    property string note
    property string allText: qsTranslate("Loomstreet", "See all")
    // The shopper can say that a piece does not interest them.
    property bool hideable: false
    // Where the hearts of its cards keep them.
    property WishlistStore wishlist: null
    // The piece that is shown beside the page.
    property string previewed
    // Pictures of the first cards that have been decoded.
    property int decoded: 0

    readonly property int perView: Math.max(1, Math.floor((width + Theme.cardGapX) / (Theme.cardRailMinimumWidth + Theme.cardGapX)))
    readonly property real cardWidth: Math.floor((width + Theme.cardGapX) / perView) - Theme.cardGapX
    readonly property int count: products ? products.count : 0
    readonly property bool settled: count > 0 && decoded >= Math.min(count, perView)

    signal opened(string handle, var item, int mode)
    signal allAsked()
    signal hideAsked(string handle, string title)

    // The number of the first card in view. The list's own follows a card when others come and go before it.
    property int first: 0

    // Brings the card with this number to the start, as far as there are cards behind it.
    function show(index: int): void {
        first = Math.max(0, Math.min(index, rail.count - rail.perView))
        row.currentIndex = first
    }
    function stay(): void { show(first) }

    visible: waiting || count > 0
    spacing: Theme.space2

    onPerViewChanged: stay()

    // When cards come or go before its own, the list follows that one only after it has told of their number.
    Timer {
        id: later

        interval: 0
        onTriggered: {
            rail.stay()
            // From right to left the list came to lie by its first card before that had its place.
            if (row.LayoutMirroring.enabled)
                row.positionViewAtIndex(rail.first, ListView.Beginning)
        }
    }

    SectionHeader {
        width: parent.width
        title: rail.title
        note: rail.note
        actionText: rail.waiting ? "" : rail.allText
        paged: true
        hasPrevious: rail.first > 0
        hasNext: rail.first + rail.perView < rail.count
        onActivated: rail.allAsked()
        onPrevious: rail.show(rail.first - rail.perView)
        onNext: rail.show(rail.first + rail.perView)
    }
    FocusScope {
        id: cards

        // The card that has the focus when the row has it.
        property int focused: 0

        function move(by: int): void {
            focused = Math.max(0, Math.min(focused + by, rail.count - 1))
            if (focused < rail.first)
                rail.show(focused)
            else if (focused >= rail.first + rail.perView)
                rail.show(focused - rail.perView + 1)
        }

        width: parent.width
        height: measure.height
        Keys.onLeftPressed: move(LayoutMirroring.enabled ? 1 : -1)
        Keys.onRightPressed: move(LayoutMirroring.enabled ? -1 : 1)

        Accessible.role: Accessible.List
        Accessible.name: rail.title

        ListView {
            id: row

            anchors.fill: parent
            visible: !rail.waiting
            focus: true
            orientation: ListView.Horizontal
            spacing: Theme.cardGapX
            interactive: false
            cacheBuffer: Math.max(0, width)
            highlightRangeMode: ListView.StrictlyEnforceRange
            preferredHighlightBegin: 0
            preferredHighlightEnd: rail.cardWidth
            highlightMoveDuration: Theme.durationPanel
            highlightMoveVelocity: -1
            model: rail.near ? rail.products : null
            onCountChanged: {
                if (count === 0)
                    return
                cards.focused = Math.min(cards.focused, count - 1)
                rail.stay()
                later.restart()
            }

            delegate: PieceCard {
                required property int index

                width: rail.cardWidth
                wishlist: rail.wishlist
                previewed: handle === rail.previewed
                removable: rail.hideable
                removeText: qsTranslate("Loomstreet", "Not interested")
                focus: index === cards.focused
                activeFocusOnTab: index === cards.focused
                // Beyond the rail's edges a card is out of sight, not cut.
                readonly property bool inView: index >= rail.first && index < rail.first + rail.perView

                opacity: inView ? 1 : 0
                visible: opacity > 0
                due: PicturePrefetch.enabled || inView
                onOpened: (handle, item, mode) => {
                    cards.focused = index
                    rail.opened(handle, item, mode)
                }
                onRemoveAsked: (handle, title) => rail.hideAsked(handle, title)
                Keys.onDeletePressed: if (removable) rail.hideAsked(handle, title)
                onPictureSettledChanged: if (pictureSettled) ++rail.decoded
                Component.onCompleted: if (pictureSettled) ++rail.decoded

                Behavior on opacity { NumberAnimation { duration: Theme.durationPanel } }
            }
            displaced: Transition {
                NumberAnimation { property: "x"; duration: Theme.durationHover }
            }
        }
        Row {
            anchors.fill: parent
            visible: rail.waiting
            spacing: Theme.cardGapX

            Repeater {
                model: rail.waiting ? rail.perView : 0

                CardSkeleton { width: rail.cardWidth }
            }
        }
        CardMeasure {
            id: measure

            width: rail.cardWidth
        }
    }
}
