pragma ComponentBehavior: Bound
import QtQuick
import Loomstreet.Components
import Loomstreet.Model
import Loomstreet.Theme

// The cards of a list: as many columns as fit, moved through by the arrow keys. The cards are given other pieces as
// the grid scrolls, a few at a time, so that no step of it is long.
FocusScope {
    id: grid

    property var products: null // a model with the roles of a PieceCard
    property int padding: Theme.layoutPagePaddingRegular
    // Where the hearts of its cards keep them.
    property WishlistStore wishlist: null
    // Pieces are being chosen, these by now.
    property bool picking: false
    property var picked: []
    // Cards can be taken out.
    property bool removable: false
    property string removeText: qsTranslate("Loomstreet", "Remove from the list")
    // The piece that is shown beside the grid.
    property string previewed
    // What stands above the first row and below the last one, and scrolls with them.
    property Item head: null
    property Item foot: null

    readonly property Flickable flickable: flick
    readonly property int count: pool.count
    readonly property alias currentIndex: pool.current
    readonly property alias contentY: flick.contentY
    // Where the list is scrolled to, from the top of its head.
    readonly property real scrollY: flick.contentY + flick.topMargin

    readonly property int room: width - 2 * padding
    readonly property int columns: Math.max(1, Math.floor((room + Theme.cardGapX) / (Theme.cardMinimumWidth + Theme.cardGapX)))
    readonly property real cardWidth: Math.floor((room + Theme.cardGapX) / columns) - Theme.cardGapX
    readonly property real cellHeight: measure.height + Theme.cardGapY
    // The first and the last piece of the rows in flick.
    readonly property int firstSeen: Math.max(0, Math.floor(flick.contentY / cellHeight)) * columns
    readonly property int lastSeen: (Math.max(0, Math.ceil((flick.contentY + height) / cellHeight))) * columns - 1

    property int seenBefore: 0
    // Pictures of cards that have been decoded.
    property int decoded: 0
    readonly property int firstCards: 8
    readonly property bool settled: count > 0 && decoded >= Math.min(count, firstCards, PicturePrefetch.enabled ? count : columns)

    signal opened(string handle, var item, int mode)
    signal nearEnd()
    signal pickToggled(string handle)
    signal removeAsked(string handle, string title)

    function noteNearEnd(): void {
        // Two rows before the end is seen.
        if (count > 0 && flick.contentHeight - contentY - height < 2 * cellHeight)
            nearEnd()
    }
    function rowY(place: int): real { return Math.floor(place / columns) * cellHeight }
    function lookAround(): void {
        // Further ahead than behind, once the first page no longer waits.
        const rows = settled ? 2 : 1
        const up = settled && firstSeen < seenBefore ? rows : 1
        const down = settled && firstSeen < seenBefore ? 1 : rows
        seenBefore = firstSeen
        pool.look(firstSeen, lastSeen, firstSeen - up * columns, lastSeen + down * columns)
    }
    function reachable(y: real): real {
        const lowest = Math.max(-flick.topMargin, rowY(count + columns - 1) + flick.bottomMargin - height)
        return Math.max(-flick.topMargin, Math.min(y, lowest))
    }
    function scrollTo(y: real): void { flick.contentY = reachable(y) }
    // Makes a piece the current one and brings it into view.
    function select(place: int): void {
        pool.current = place
        const top = rowY(pool.current)
        const bottom = top + measure.height
        following.stop()
        if (top >= contentY && bottom <= contentY + height)
            return
        // What is scrolled to does not stick to the edge.
        const below = top >= contentY && measure.height < height - 2 * Theme.space4
        const y = reachable(below ? bottom + Theme.space4 - height : top - Theme.space4)
        if (Math.abs(y - contentY) > 3 * height) {
            scrollTo(y)
        } else {
            following.to = y
            following.start()
        }
    }

    onFirstSeenChanged: lookAround()
    onLastSeenChanged: lookAround()
    onSettledChanged: lookAround()
    Component.onCompleted: lookAround()
    // A page that goes is made nothing more, though it may take a turn of the event loop until it is gone.
    Component.onDestruction: pool.end()
    onCountChanged: noteNearEnd()
    // Later: what it sets off may be what this height follows from.
    onHeightChanged: later.restart()
    Keys.onPressed: event => {
        event.accepted = false
        if ((event.modifiers & ~Qt.KeypadModifier) === 0)
            keys.press(event)
    }

    Accessible.role: Accessible.List
    Accessible.name: qsTranslate("Loomstreet", "Pieces")

    Timer {
        id: later

        interval: 0
        onTriggered: grid.noteNearEnd()
    }
    RecyclingModel {
        id: pool

        source: grid.products
        onClosingUp: cards.closing = true
        onClosedUp: cards.closing = false
    }
    CardMeasure {
        id: measure

        width: grid.cardWidth
    }

    Flickable {
        id: flick

        anchors.fill: parent
        contentWidth: width
        contentHeight: Math.ceil(grid.count / grid.columns) * grid.cellHeight
        topMargin: grid.head?.height ?? 0
        bottomMargin: grid.foot?.height ?? 0
        flickableDirection: Flickable.VerticalFlick
        boundsBehavior: Flickable.StopAtBounds
        // At the top it stays at the top while the head grows.
        onTopMarginChanged: if (contentY <= 0) contentY = -topMargin
        onContentYChanged: {
            grid.noteNearEnd()
            scrolling.restart()
        }
        onContentHeightChanged: grid.noteNearEnd()
        onMovementStarted: following.stop()

        ScrollBar.vertical: ScrollBar {}

        // In the order of the Tab key: the head, the cards, the foot.
        Item {
            id: above

            x: grid.padding
            y: -flick.topMargin
        }
        GridGrounds {
            id: grounds

            grid: grid
            pool: pool
            cards: cards
            pictureHeight: measure.pictureHeight
        }
        Repeater {
            id: cards

            // Cards that move now close a gap.
            property bool closing: false

            function columnX(place: int): real {
                const x = grid.padding + place % grid.columns * (grid.cardWidth + Theme.cardGapX)
                return grid.LayoutMirroring.enabled ? grid.width - x - grid.cardWidth : x
            }

            model: pool.source ? pool : null

            delegate: PieceCard {
                id: card

                required property int place

                x: place < 0 ? 0 : cards.columnX(place)
                y: grid.rowY(place)
                width: grid.cardWidth
                visible: place >= 0
                passing: scrolling.running
                due: PicturePrefetch.enabled || (place >= grid.firstSeen && place <= grid.lastSeen)
                previewed: handle === grid.previewed
                wishlist: grid.wishlist
                picking: grid.picking
                picked: grid.picking && grid.picked.indexOf(handle) >= 0
                removable: grid.removable
                focus: isCurrent
                activeFocusOnTab: isCurrent
                onReachedChanged: if (reached) pool.held = place
                onPickToggled: handle => {
                    grid.select(card.place)
                    grid.pickToggled(handle)
                }
                removeText: grid.removeText
                onRemoveAsked: (handle, title) => grid.removeAsked(handle, title)
                Keys.onDeletePressed: if (removable) grid.removeAsked(handle, title)
                onOpened: (handle, item, mode) => {
                    grid.select(card.place)
                    grid.opened(handle, item, mode)
                }
                onPictureSettledChanged: if (pictureSettled) ++grid.decoded
                Component.onCompleted: if (pictureSettled) ++grid.decoded

                readonly property bool isCurrent: place >= 0 && place === pool.current

                Behavior on x { enabled: cards.closing; NumberAnimation { duration: Theme.durationHover } }
                Behavior on y { enabled: cards.closing; NumberAnimation { duration: Theme.durationHover } }
            }
        }
        Item {
            id: below

            x: grid.padding
            y: flick.contentHeight
        }
    }
    // While it scrolls no card minds the pointer that it passes under.
    Timer {
        id: scrolling

        interval: 100
    }
    NumberAnimation {
        id: following

        target: flick
        property: "contentY"
        duration: Theme.durationPage
        easing.type: Easing.Bezier
        easing.bezierCurve: Theme.curveStandard
    }
    GridAnchor { grid: grid }
    GridKeys {
        id: keys

        grid: grid
    }
    FocusFollower { flickable: flick }

    Binding { when: grid.head !== null; target: grid.head; property: "parent"; value: above }
    Binding { when: grid.foot !== null; target: grid.foot; property: "parent"; value: below }
}
