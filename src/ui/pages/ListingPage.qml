pragma ComponentBehavior: Bound
import QtQuick
import Loomstreet.Components
import Loomstreet.Model

// A list of pieces with its filters: what the pages of collections and searches share. The filters stand beside the
// grid, or slide over it where there is no room.
PageBase {
    id: page

    readonly property ProductListing listing: context.model
    readonly property int phase: listing ? listing.phase : ProductListing.Idle

    property string heading: title
    property string note
    // A sentence about what is listed, on a line of its own that is kept for it.
    property string summary
    property bool lined: false
    property var collections: []
    // There is nothing to list at all, as for a search without words.
    property bool blank: false
    property ListingWords words: ListingWords {}

    // A list that can be narrowed keeps its head, whatever comes of it: what was chosen can always be taken back.
    readonly property bool framed: phase === ProductListing.Loaded
        || (phase !== ProductListing.Missing && phase !== ProductListing.Idle
            && listing.filters.count + listing.filters.selectedCount > 0)
    property bool filtersOpen: false
    readonly property bool roomy: width >= 880

    settled: grid.settled || (phase !== ProductListing.Loading && phase !== ProductListing.Idle
                              && phase !== ProductListing.Loaded)
    flickable: grid.flickable

    function takeFocus(): void { (phase === ProductListing.Loaded ? grid : page).forceActiveFocus() }
    // What had the focus goes: the list takes it, which may only be on its way, at the piece that was seen last.
    function focusList(): void {
        if (phase === ProductListing.Loaded)
            grid.select(grid.count - 1)
        grid.forceActiveFocus(Qt.OtherFocusReason)
    }
    function reload(): void { listing.reload() }
    function closeFilters(): void {
        filtersOpen = false
        if (roomy)
            head.focusFilters() // the sheet gives the focus back itself
    }
    function showFilters(): void {
        if (!filtersOpen)
            return
        if (roomy && side.status === Loader.Null)
            side.setSource("FilterSide.qml", { listing: listing, focus: true, padding: Qt.binding(() => page.padding) })
        if (!roomy && sheet.status === Loader.Null)
            sheet.setSource("FilterSheet.qml", { listing: listing, open: Qt.binding(() => page.filtersOpen && !page.roomy) })
    }

    onFiltersOpenChanged: showFilters()
    onRoomyChanged: showFilters()
    onShownChanged: {
        if (!shown || !listing)
            return
        listing.load()
        grid.noteNearEnd() // what is near while hidden is asked for when it is shown
    }
    Component.onCompleted: if (shown && listing) listing.load()

    OfflineStrip {
        id: strip

        objectName: "strip"
        offline: page.listing?.isOffline ?? false
        canRetry: true
        onRetry: page.listing.reload()
        width: parent.width
        visible: page.phase === ProductListing.Loaded && page.listing.errorText !== ""
        text: page.listing ? page.listing.errorText : ""
        onVisibleChanged: if (!visible && holdsFocus()) grid.forceActiveFocus(Qt.OtherFocusReason)

        function holdsFocus(): bool {
            let item = Window.activeFocusItem
            while (item !== null && item !== strip)
                item = item.parent
            return item !== null
        }
    }

    Loader {
        id: side

        anchors { left: parent.left; top: grid.top; bottom: parent.bottom }
        visible: page.framed && page.filtersOpen && page.roomy
        onLoaded: forceActiveFocus(Qt.OtherFocusReason)
        onVisibleChanged: if (visible && page.shown) forceActiveFocus(Qt.OtherFocusReason)
    }
    Connections {
        target: side.item
        function onCloseAsked(): void { page.closeFilters() }
    }

    ProductGrid {
        id: grid

        objectName: "grid"
        anchors { left: side.visible ? side.right : parent.left; right: parent.right; bottom: parent.bottom }
        anchors { top: strip.visible ? strip.bottom : parent.top }
        visible: page.framed
        focus: true
        padding: page.padding
        products: page.listing ? page.listing.products : null
        onNearEnd: if (page.shown && !page.listing.hasLoadMoreFailed) page.listing.loadMore()
        onOpened: (handle, item, mode) => page.router.openPiece(handle, item, mode)
        previewed: page.previewed
        wishlist: page.app.wishlist

        head: ListingHeader {
            id: head

            width: grid.room
            listing: page.listing
            title: page.heading
            note: page.note
            summary: page.summary
            lined: page.lined
            collections: page.collections
            narrow: page.narrow
            filtersOpen: page.filtersOpen
            onFiltersAsked: page.filtersOpen ? page.closeFilters() : page.filtersOpen = true
            onCollectionOpened: (handle, title) => page.router.openCollection(handle, title)
        }
        foot: Item {
            width: grid.room
            height: waiting.shown ? waiting.natural : end.implicitHeight

            ListingEnd {
                id: end

                width: parent.width
                height: implicitHeight
                visible: page.framed && !waiting.shown
                listing: page.listing
                words: page.words
                shown: page.shown
                onFocusFreed: page.focusList()
            }
            CollectionSkeleton {
                id: waiting

                width: parent.width
                height: natural
                shown: page.framed && page.phase === ProductListing.Loading
                padding: 0
                headless: true
            }
        }
    }

    CollectionSkeleton {
        anchors.fill: parent
        shown: !page.framed && (page.phase === ProductListing.Loading || page.phase === ProductListing.Idle) && !page.blank
        padding: page.padding
        title: page.title
        narrow: page.narrow
        lined: page.lined
    }
    ListingEnd {
        anchors.fill: parent
        visible: !page.framed
        blank: page.blank
        listing: page.listing
        words: page.words
        shown: page.shown
        onFocusFreed: page.focusList()
    }

    Loader {
        id: sheet

        anchors.fill: parent
        z: 1
    }
    Connections {
        target: sheet.item
        function onCloseAsked(): void { page.closeFilters() }
    }
}
