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
    // Of the department the shopper browses.
    property CollectionModel department: null

    readonly property bool hasContent: news.count > 0 || sale.count > 0 || (collections ? collections.count > 0 : false)
    readonly property bool loading: !newIn || !finalSale || !collections
                                    || newIn.isLoading || finalSale.isLoading || collections.isLoading
    readonly property string errorText: newIn?.errorText || finalSale?.errorText || collections?.errorText || ""
    readonly property bool failed: !hasContent && !loading && errorText !== ""
    // The store has none of what this page is made of.
    readonly property bool empty: !hasContent && errorText === "" && hasNothing(newIn) && hasNothing(finalSale)
                                  && (collections ? collections.isLoaded : false)

    title: qsTranslate("Loomstreet", "Explore")
    settled: (news.visible ? news.settled : sale.settled || tiles.decoded > 0) || failed || empty
    flickable: flick

    function hasNothing(collection: CollectionModel): bool {
        return collection !== null && (collection.phase === CollectionModel.Missing || collection.phase === CollectionModel.Empty)
    }
    function takeFocus(): void { flick.forceActiveFocus() }
    function reload(): void {
        collections.reload()
        newIn.reload()
        finalSale.reload()
        department.reload()
    }
    function begin(): void {
        if (!shown)
            return
        if (newIn === null) {
            newIn = app.makeRail(page, "new-in")
            finalSale = app.makeRail(page, "final-sale")
        }
        if (department?.handle !== app.market.department)
            department = app.makeRail(page, app.market.department)
        newIn.load()
        finalSale.load()
        department.load()
        collections.load()
    }

    onShownChanged: begin()
    Component.onCompleted: begin()

    OfflineStrip {
        id: strip

        objectName: "strip"
        offline: (page.collections?.isOffline || page.newIn?.isOffline || page.finalSale?.isOffline) ?? false
        canRetry: true
        onRetry: page.reload()
        width: parent.width
        visible: page.hasContent && text !== ""
        text: page.errorText
    }
    Flickable {
        id: flick

        objectName: "flick"
        anchors { left: parent.left; right: parent.right; top: strip.visible ? strip.bottom : parent.top; bottom: parent.bottom }
        visible: !page.failed && !page.empty
        contentHeight: column.height + Theme.space4 + Theme.space8
        boundsBehavior: Flickable.StopAtBounds
        ScrollBar.vertical: ScrollBar {}

        FocusFollower { flickable: flick }

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
                onOpened: (handle, item, mode) => page.router.openPiece(handle, item, mode)
                previewed: page.previewed
                wishlist: page.app.wishlist
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
                objectName: "department"
                width: parent.width
                title: page.app.market.department === "men" ? qsTranslate("Loomstreet", "Men") : qsTranslate("Loomstreet", "Women")
                note: qsTranslate("Loomstreet", "The department you browse")
                collection: page.department
                onOpened: (handle, item, mode) => page.router.openPiece(handle, item, mode)
                previewed: page.previewed
                wishlist: page.app.wishlist
                onAllAsked: page.router.selectItem(page.app.market.department === "men" ? 3 : 2)
            }
            ProductRail {
                id: sale

                objectName: "finalSale"
                width: parent.width
                title: qsTranslate("Loomstreet", "Final Sale")
                note: qsTranslate("Loomstreet", "Last pieces, reduced")
                collection: page.finalSale
                onOpened: (handle, item, mode) => page.router.openPiece(handle, item, mode)
                previewed: page.previewed
                wishlist: page.app.wishlist
                onAllAsked: page.router.selectItem(7)
            }
        }
    }
    ErrorState {
        objectName: "error"
        anchors.centerIn: parent
        visible: page.failed
        width: Math.min(parent.width, 480)
        sentence: page.errorText
        takesFocus: page.shown
        onRetry: page.reload()
    }
    EmptyState {
        objectName: "missing"
        anchors.centerIn: parent
        visible: page.empty
        width: Math.min(parent.width, 480)
        iconName: "hanger"
        title: qsTranslate("Loomstreet", "Nothing here yet")
        sentence: qsTranslate("Loomstreet", "New pieces arrive every week.")

        PushButton {
            text: qsTranslate("Loomstreet", "Designers")
            onClicked: page.router.openLink("/pages/brands-at-loomstreet")
        }
        PushButton {
            text: qsTranslate("Loomstreet", "Try again")
            onClicked: page.reload()
        }
    }
}
