pragma ComponentBehavior: Bound
import QtQuick
import Loomstreet.Components
import Loomstreet.Model
import Loomstreet.Theme

// The way into the shop: what is new, what is reduced, and the collections of every department.
PageBase {
    id: page

    readonly property CollectionTilesModel collections: context.model
    property CollectionModel newIn: null
    property CollectionModel finalSale: null

    // Everything it is made of failed for the same reason.
    readonly property bool failed: collections && collections.count === 0 && collections.errorText !== ""
                                   && (!newIn || newIn.phase === CollectionModel.Failed)

    title: qsTranslate("Loomstreet", "Explore")
    settled: news.settled || failed
    scrollY: flick.contentY

    function scrollTo(y: real): void { flick.contentY = y }
    function takeFocus(): void { flick.forceActiveFocus() }
    function reload(): void {
        collections.reload()
        newIn.reload()
        finalSale.reload()
    }
    function begin(): void {
        if (!shown)
            return
        if (newIn === null) {
            newIn = app.makeCollection(page, "new-in", "")
            finalSale = app.makeCollection(page, "final-sale", "")
        }
        newIn.load()
        finalSale.load()
        collections.load()
    }
    function openPiece(handle: string, item: var, modifiers: int): void {
        if (modifiers & Qt.ControlModifier)
            router.openProductInNewTab(handle, item)
        else
            router.openProductCard(handle, item)
    }

    onShownChanged: begin()
    Component.onCompleted: begin()

    OfflineStrip {
        id: strip

        objectName: "strip"
        offline: page.app.session.isOffline
        canRetry: true
        onRetry: page.reload()
        width: parent.width
        visible: !page.failed && text !== ""
        text: page.newIn?.errorText || page.collections?.errorText || ""
    }
    Flickable {
        id: flick

        objectName: "flick"
        anchors { left: parent.left; right: parent.right; top: strip.visible ? strip.bottom : parent.top; bottom: parent.bottom }
        visible: !page.failed
        contentHeight: column.height + Theme.space4 + Theme.space8
        boundsBehavior: Flickable.StopAtBounds
        ScrollBar.vertical: ScrollBar {}

        Column {
            id: column

            anchors { left: parent.left; right: parent.right; top: parent.top; leftMargin: page.padding; rightMargin: page.padding; topMargin: Theme.space3 }
            spacing: Theme.space5

            ProductRail {
                id: news

                objectName: "newIn"
                width: parent.width
                title: qsTranslate("Loomstreet", "New In")
                note: qsTranslate("Loomstreet", "The latest pieces")
                collection: page.newIn
                onOpened: (handle, item, modifiers) => page.openPiece(handle, item, modifiers)
                onAllAsked: page.router.selectItem(1)
            }
            Column {
                width: parent.width
                spacing: Theme.space2
                visible: tiles.waiting || (page.collections ? page.collections.count > 0 : false)

                SectionHeader {
                    width: parent.width
                    title: qsTranslate("Loomstreet", "Collections")
                }
                TileGrid {
                    id: tiles

                    objectName: "tiles"
                    width: parent.width
                    collections: page.collections
                    onOpened: (handle, title) => page.router.openCollection(handle, title)
                }
            }
            ProductRail {
                objectName: "finalSale"
                width: parent.width
                title: qsTranslate("Loomstreet", "Final Sale")
                note: qsTranslate("Loomstreet", "Last pieces, reduced")
                collection: page.finalSale
                onOpened: (handle, item, modifiers) => page.openPiece(handle, item, modifiers)
                onAllAsked: page.router.selectItem(7)
            }
        }
    }
    ErrorState {
        objectName: "error"
        anchors.centerIn: parent
        visible: page.failed
        width: Math.min(parent.width, 480)
        sentence: page.collections?.errorText ?? ""
        takesFocus: page.shown
        onRetry: page.reload()
    }
}
