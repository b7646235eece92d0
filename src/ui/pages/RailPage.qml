pragma ComponentBehavior: Bound
import QtQuick
import Loomstreet.Components
import Loomstreet.Model

// All that is recommended in one of the home's rails.
PageBase {
    id: page

    readonly property RecoRail rail: context.model
    readonly property int phase: rail ? rail.phase : RecoRail.Idle
    readonly property bool loaded: phase === RecoRail.Loaded
    readonly property bool waiting: phase === RecoRail.Loading || phase === RecoRail.Idle

    title: rail?.title || qsTranslate("Loomstreet", "For you")
    settled: grid.settled || phase === RecoRail.Failed || phase === RecoRail.Empty
    flickable: grid.flickable

    function takeFocus(): void { (loaded ? grid : page).forceActiveFocus() }
    function reload(): void { rail.reload() }
    function begin(): void {
        if (!shown || !rail)
            return
        rail.load()
        grid.noteNearEnd() // what is near while hidden is asked for when it is shown
    }

    onShownChanged: begin()
    Component.onCompleted: begin()

    OfflineStrip {
        id: strip

        objectName: "strip"
        offline: page.rail?.isOffline ?? false
        canRetry: true
        onRetry: page.rail.reload()
        width: parent.width
        visible: page.loaded && text !== ""
        text: page.rail?.errorText ?? ""
    }
    ProductGrid {
        id: grid

        objectName: "grid"
        anchors { left: parent.left; right: parent.right; top: strip.visible ? strip.bottom : parent.top; bottom: parent.bottom }
        visible: page.loaded
        focus: true
        padding: page.padding
        products: page.rail?.pieces ?? null
        wishlist: page.app.wishlist
        previewed: page.previewed
        removable: true
        removeText: qsTranslate("Loomstreet", "Not interested")
        onNearEnd: if (page.shown && !page.rail.hasLoadMoreFailed) page.rail.loadMore()
        onOpened: (handle, item, mode) => page.router.openPiece(handle, item, mode)
        onRemoveAsked: (handle, title) => page.app.notInterested.hide(handle, title)

        head: ListHeader {
            width: grid.room
            narrow: page.narrow
            title: page.title
            note: page.rail?.note ?? ""
        }
        foot: ListingFooter {
            width: grid.room
            height: implicitHeight
            listing: page.rail
            count: grid.count
            onFocusFreed: grid.forceActiveFocus(Qt.OtherFocusReason)
        }
    }
    CollectionSkeleton {
        anchors.fill: parent
        shown: page.waiting
        padding: page.padding
        title: page.title
        narrow: page.narrow
    }
    ErrorState {
        objectName: "error"
        anchors.centerIn: parent
        visible: page.phase === RecoRail.Failed
        width: Math.min(parent.width, 480)
        sentence: page.rail?.errorText ?? ""
        takesFocus: page.shown
        onRetry: page.rail.reload()
    }
    EmptyState {
        objectName: "empty"
        anchors.centerIn: parent
        visible: page.phase === RecoRail.Empty
        width: Math.min(parent.width, 480)
        iconName: "hanger"
        title: qsTranslate("Loomstreet", "Nothing here yet")
        sentence: qsTranslate("Loomstreet", "Look around a little, and you find here what goes with it.")

        PushButton {
            objectName: "newIn"
            text: qsTranslate("Loomstreet", "New In")
            onClicked: page.router.selectItem(1)
        }
        PushButton {
            objectName: "explore"
            text: qsTranslate("Loomstreet", "Explore")
            onClicked: page.router.selectItem(0)
        }
    }
}
