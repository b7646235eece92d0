pragma ComponentBehavior: Bound
import QtQuick
import Loomstreet.Components
import Loomstreet.Model
import Loomstreet.Theme

// The cards of a list: as many columns as fit, made as they come into sight, moved through by the arrow keys.
GridView {
    id: grid

    property var products // a model with the roles of a PieceCard
    property int padding: Theme.layoutPagePaddingRegular
    // Where the hearts of its cards keep them.
    property WishlistStore wishlist: null
    // Pieces are being chosen, these by now.
    property bool picking: false
    property var picked: []
    // Cards can be taken out.
    property bool removable: false
    // The piece that is shown beside the grid.
    property string previewed

    readonly property int room: width - 2 * padding
    readonly property int columns: Math.max(1, Math.floor((room + Theme.cardGapX) / (Theme.cardMinimumWidth + Theme.cardGapX)))
    readonly property real cardWidth: Math.floor((room + Theme.cardGapX) / columns) - Theme.cardGapX
    // Pictures of the first cards that have been decoded.
    property int decoded: 0
    readonly property int firstCards: 8
    readonly property bool settled: count > 0 && decoded >= Math.min(count, firstCards)

    signal opened(string handle, var item, int mode)
    signal nearEnd()
    signal pickToggled(string handle)
    signal removeAsked(string handle)

    function noteNearEnd(): void {
        // Two rows before the end is seen.
        if (count > 0 && originY + contentHeight - contentY - height < 2 * cellHeight)
            nearEnd()
    }

    model: products
    leftMargin: padding
    rightMargin: padding - Theme.cardGapX
    cellWidth: cardWidth + Theme.cardGapX + nudge
    cellHeight: measure.implicitHeight + Theme.cardGapY
    // Rows that come are made between frames; the first page is not kept waiting by them.
    property int rowsAhead: 1
    cacheBuffer: rowsAhead * cellHeight
    keyNavigationEnabled: true
    boundsBehavior: Flickable.StopAtBounds
    highlightFollowsCurrentItem: true
    // A card scrolled to by the keys does not stick to the edge.
    preferredHighlightBegin: Theme.space4
    preferredHighlightEnd: height - Theme.space4
    highlightMoveDuration: Theme.durationPage

    // What stands above the first row and below the last one, and scrolls with them.
    property Item head: null
    property Item foot: null

    // Where the list is scrolled to, from the top of its head.
    property real scrollY: 0

    topMargin: head?.height ?? 0
    bottomMargin: foot?.height ?? 0
    // At the top it stays at the top while the head grows.
    onTopMarginChanged: if (contentY <= originY) contentY = originY - topMargin
    // The view lays out anew for other cells, and not for other margins.
    property real nudge: 0
    onLeftMarginChanged: settling.restart()
    onWidthChanged: settling.restart()

    function settle(): void {
        nudge = 0.01
        nudge = 0
        if (!LayoutMirroring.enabled)
            contentX = originX - leftMargin
    }

    Timer {
        id: settling

        interval: 0
        onTriggered: grid.settle()
    }
    Timer {
        interval: 0
        running: grid.settled && grid.rowsAhead < 3
        onTriggered: grid.rowsAhead = 3
    }
    GridAnchor {
        parent: grid
        grid: grid
        columns: grid.columns
        onLayoutWanted: grid.settle()
    }
    Binding {
        when: grid.head !== null
        target: grid.head
        property: "parent"
        value: grid.contentItem
    }
    Binding {
        when: grid.head !== null
        target: grid.head
        property: "y"
        value: grid.originY - (grid.head?.height ?? 0)
    }
    Binding {
        when: grid.foot !== null
        target: grid.foot
        property: "parent"
        value: grid.contentItem
    }
    Binding {
        when: grid.foot !== null
        target: grid.foot
        property: "y"
        value: grid.originY + grid.contentHeight
    }
    onContentYChanged: {
        scrollY = contentY - originY + topMargin
        noteNearEnd()
    }
    onContentHeightChanged: noteNearEnd()
    // Later: what it sets off may be what this height follows from.
    onHeightChanged: later.restart()

    Timer {
        id: later

        interval: 0
        onTriggered: grid.noteNearEnd()
    }

    Accessible.role: Accessible.List
    Accessible.name: qsTranslate("Loomstreet", "Pieces")

    // What a card measures at this width; never shown.
    ProductCard {
        id: measure

        width: grid.cardWidth
        visible: false
    }

    delegate: PieceCard {
        id: card

        width: grid.cardWidth
        previewed: handle === grid.previewed
        wishlist: grid.wishlist
        picking: grid.picking
        picked: grid.picking && grid.picked.indexOf(handle) >= 0
        removable: grid.removable
        focus: GridView.isCurrentItem
        activeFocusOnTab: GridView.isCurrentItem
        onPickToggled: handle => {
            grid.currentIndex = card.index
            grid.pickToggled(handle)
        }
        onRemoveAsked: handle => grid.removeAsked(handle)
        Keys.onDeletePressed: if (removable) grid.removeAsked(handle)
        onOpened: (handle, item, mode) => {
            grid.currentIndex = card.index
            grid.opened(handle, item, mode)
        }
        onPictureSettledChanged: noteSettled()
        Component.onCompleted: noteSettled()

        function noteSettled(): void {
            if (pictureSettled && index < grid.firstCards)
                ++grid.decoded
        }
    }
}
