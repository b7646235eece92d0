pragma ComponentBehavior: Bound
import QtQuick
import Loomstreet.Components
import Loomstreet.Model
import Loomstreet.Theme

// The pieces of a collection.
PageBase {
    id: page

    readonly property CollectionModel collection: context.model
    readonly property int phase: collection ? collection.phase : CollectionModel.Idle

    title: phase === CollectionModel.Missing ? qsTranslate("Loomstreet", "Not available") : collection?.title ?? ""
    settled: grid.settled || (phase !== CollectionModel.Loading && phase !== CollectionModel.Idle
                              && phase !== CollectionModel.Loaded)
    flickable: grid

    function takeFocus(): void { (phase === CollectionModel.Loaded ? grid : page).forceActiveFocus() }
    function reload(): void { collection.reload() }

    onShownChanged: {
        if (!shown || !collection)
            return
        collection.load()
        grid.noteNearEnd() // what is near while hidden is asked for when it is shown
    }
    Component.onCompleted: if (shown && collection) collection.load()

    OfflineStrip {
        id: strip

        objectName: "strip"
        offline: page.collection?.isOffline ?? false
        canRetry: true
        onRetry: page.collection.reload()
        width: parent.width
        visible: page.phase === CollectionModel.Loaded && page.collection.errorText !== ""
        text: page.collection ? page.collection.errorText : ""
    }

    ProductGrid {
        id: grid

        objectName: "grid"
        anchors { left: parent.left; right: parent.right; top: strip.visible ? strip.bottom : parent.top; bottom: parent.bottom }
        visible: page.phase === CollectionModel.Loaded
        focus: true
        padding: page.padding
        products: page.collection ? page.collection.products : null
        onNearEnd: if (page.shown && !page.collection.hasLoadMoreFailed) page.collection.loadMore()
        onOpened: (handle, item, modifiers) => {
            if (modifiers & Qt.ControlModifier)
                page.router.openProductInNewTab(handle, item)
            else
                page.router.openProductCard(handle, item)
        }

        head: CollectionHeader {
            width: grid.room
            collection: page.collection
            narrow: page.narrow
        }
        foot: CollectionFooter {
            width: grid.room
            collection: page.collection
        }
        ScrollBar.vertical: ScrollBar {}

        FocusFollower { flickable: grid }
    }

    CollectionSkeleton {
        anchors.fill: parent
        shown: page.phase === CollectionModel.Loading || page.phase === CollectionModel.Idle
        padding: page.padding
        title: page.title
        narrow: page.narrow
    }

    ErrorState {
        objectName: "error"
        anchors.centerIn: parent
        visible: page.phase === CollectionModel.Failed
        width: Math.min(parent.width, 480)
        sentence: page.collection?.errorText ?? ""
        takesFocus: page.shown
        onRetry: page.collection.reload()
    }
    EmptyState {
        objectName: "missing"
        anchors.centerIn: parent
        visible: page.phase === CollectionModel.Missing || page.phase === CollectionModel.Empty
        width: Math.min(parent.width, 480)
        iconName: "info"
        title: page.phase === CollectionModel.Missing
               ? qsTranslate("Loomstreet", "This collection isn't available")
               : qsTranslate("Loomstreet", "Nothing here yet")
        sentence: page.phase === CollectionModel.Missing
                  ? qsTranslate("Loomstreet", "It may have been renamed or isn't sold in ") + page.app.market.countryName
                  : qsTranslate("Loomstreet", "New pieces arrive every week.")

        PushButton {
            text: qsTranslate("Loomstreet", "Explore")
            onClicked: page.router.selectItem(0)
        }
        PushButton {
            text: qsTranslate("Loomstreet", "Designers")
            onClicked: page.router.openLink("/pages/brands-at-loomstreet")
        }
    }
}
