pragma ComponentBehavior: Bound
import QtQuick
import Loomstreet.Components
import Loomstreet.Model

// The kept pieces that cost less than when the shopper saw them.
PageBase {
    id: page

    readonly property PriceDropsModel drops: context.model
    readonly property int phase: drops ? drops.phase : PriceDropsModel.Idle
    readonly property bool loaded: phase === PriceDropsModel.Loaded

    title: qsTranslate("Loomstreet", "Price drops")
    settled: grid.settled || (!loaded && phase !== PriceDropsModel.Loading && phase !== PriceDropsModel.Idle)
    flickable: grid.flickable

    function takeFocus(): void { (loaded ? grid : page).forceActiveFocus() }
    function reload(): void { drops.reload() }

    onShownChanged: if (shown && drops) drops.load()
    Component.onCompleted: if (shown && drops) drops.load()

    OfflineStrip {
        id: strip

        objectName: "strip"
        offline: page.drops?.isOffline ?? false
        canRetry: true
        onRetry: page.drops.reload()
        width: parent.width
        visible: page.loaded && text !== ""
        text: page.drops ? page.drops.errorText : ""
    }
    ProductGrid {
        id: grid

        objectName: "grid"
        anchors { left: parent.left; right: parent.right; top: strip.visible ? strip.bottom : parent.top; bottom: parent.bottom }
        visible: page.loaded
        focus: true
        padding: page.padding
        products: page.drops ? page.drops.pieces : null
        wishlist: page.app.wishlist
        previewed: page.previewed
        onOpened: (handle, item, mode) => page.router.openPiece(handle, item, mode)

        head: ListHeader {
            width: grid.room
            narrow: page.narrow
            title: page.title
            note: qsTranslate("Loomstreet", "%Ln pieces cost less than when you saw them", "", grid.count)
        }
    }
    CollectionSkeleton {
        anchors.fill: parent
        shown: page.phase === PriceDropsModel.Loading || page.phase === PriceDropsModel.Idle
        padding: page.padding
        title: page.title
        narrow: page.narrow
    }
    ErrorState {
        objectName: "error"
        anchors.centerIn: parent
        visible: page.phase === PriceDropsModel.Failed
        width: Math.min(parent.width, 480)
        sentence: page.drops?.errorText ?? ""
        takesFocus: page.shown
        onRetry: page.drops.reload()
    }
    EmptyState {
        objectName: "empty"
        anchors.centerIn: parent
        visible: page.phase === PriceDropsModel.Empty || page.phase === PriceDropsModel.NothingKept
        width: Math.min(parent.width, 480)
        iconName: "chart.down"
        title: page.phase === PriceDropsModel.NothingKept ? qsTranslate("Loomstreet", "Nothing to watch yet")
                                                          : qsTranslate("Loomstreet", "No price drops right now")
        sentence: page.phase === PriceDropsModel.NothingKept
                  ? qsTranslate("Loomstreet", "Save a piece or look at it, and you see here when it costs less.")
                  : qsTranslate("Loomstreet", "Your saved and viewed pieces cost what they did when you saw them, or were seen in another currency.")

        PushButton {
            objectName: "wishlist"
            visible: page.phase === PriceDropsModel.Empty
            text: qsTranslate("Loomstreet", "Wishlist")
            onClicked: page.router.openWishlist()
        }
        PushButton {
            objectName: "finalSale"
            text: qsTranslate("Loomstreet", "Final Sale")
            onClicked: page.router.selectItem(7)
        }
    }
}
