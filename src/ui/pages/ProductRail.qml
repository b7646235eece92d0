pragma ComponentBehavior: Bound
import QtQuick
import Loomstreet.Components
import Loomstreet.Model
import Loomstreet.Theme

// A row of cards under a title: whole cards only, paged by as many as are in view.
Column {
    id: rail

    property CollectionModel collection
    property string title
    property string note
    // Pictures of the first cards that have been decoded.
    property int decoded: 0

    readonly property int perView: Math.max(1, Math.floor((width + Theme.cardGapX) / (Theme.cardRailMinimumWidth + Theme.cardGapX)))
    readonly property real cardWidth: Math.floor((width + Theme.cardGapX) / perView) - Theme.cardGapX
    readonly property bool waiting: collection ? collection.phase === CollectionModel.Loading || collection.phase === CollectionModel.Idle : true
    readonly property int count: collection ? collection.products.count : 0
    readonly property bool settled: count > 0 && decoded >= Math.min(count, perView)

    // Where the hearts of its cards keep them.
    property WishlistStore wishlist: null
    // The piece that is shown beside the page.
    property string previewed

    signal opened(string handle, var item, int mode)
    signal allAsked()

    // Brings the card with this number to the start, as far as there are cards behind it.
    function show(index: int): void {
        row.currentIndex = Math.max(0, Math.min(index, rail.count - rail.perView))
    }

    visible: waiting || count > 0
    spacing: Theme.space2

    SectionHeader {
        width: parent.width
        title: rail.title
        note: rail.note
        actionText: qsTranslate("Loomstreet", "See all")
        paged: true
        hasPrevious: row.currentIndex > 0
        hasNext: row.currentIndex + rail.perView < rail.count
        onActivated: rail.allAsked()
        onPrevious: rail.show(row.currentIndex - rail.perView)
        onNext: rail.show(row.currentIndex + rail.perView)
    }
    FocusScope {
        id: cards

        // The card that has the focus when the row has it.
        property int focused: 0

        function move(by: int): void {
            focused = Math.max(0, Math.min(focused + by, rail.count - 1))
            if (focused < row.currentIndex)
                rail.show(focused)
            else if (focused >= row.currentIndex + rail.perView)
                rail.show(focused - rail.perView + 1)
        }

        width: parent.width
        height: measure.implicitHeight
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
            model: rail.collection ? rail.collection.products : null
            // A list that fills after it was made has no card at its start yet.
            onCountChanged: if (count > 0) rail.show(currentIndex)

            delegate: PieceCard {
                width: rail.cardWidth
                wishlist: rail.wishlist
                previewed: handle === rail.previewed
                focus: index === cards.focused
                activeFocusOnTab: index === cards.focused
                // Beyond the rail's edges a card is out of sight, not cut.
                opacity: index >= row.currentIndex && index < row.currentIndex + rail.perView ? 1 : 0
                visible: opacity > 0
                onOpened: (handle, item, mode) => {
                    cards.focused = index
                    rail.opened(handle, item, mode)
                }
                onPictureSettledChanged: if (pictureSettled) ++rail.decoded
                Component.onCompleted: if (pictureSettled) ++rail.decoded

                Behavior on opacity { NumberAnimation { duration: Theme.durationPanel } }
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
        // What a card measures at this width; never shown.
        ProductCard {
            id: measure

            width: rail.cardWidth
            visible: false
        }
    }
}
