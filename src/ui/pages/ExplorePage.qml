pragma ComponentBehavior: Bound
import QtQuick
import Loomstreet.Components
import Loomstreet.Model
import Loomstreet.Theme

// The home: what concerns the shopper now, the promotion, what is recommended to them, and the collections of every
// department.
PageBase {
    id: page

    readonly property HomeModel home: context.model
    property CollectionTilesModel collections: null

    readonly property int tileCount: collections?.count ?? 0
    readonly property bool hasContent: (home?.count ?? 0) > 0 || tileCount > 0
    readonly property bool loading: !home || home.isLoading || !collections || collections.isLoading
    readonly property bool failed: !hasContent && !loading && home.phase === HomeModel.Failed
    // The store has none of what this page is made of.
    readonly property bool empty: !hasContent && !loading && home.phase === HomeModel.Empty
    // The rails are known, so that what stands below them need not move.
    property bool complete: false

    title: qsTranslate("Loomstreet", "Explore")
    settled: rails.settled || (rails.count === 0 && tiles.decoded > 0) || failed || empty
    flickable: flick

    function takeFocus(): void { flick.forceActiveFocus() }
    function reload(): void {
        home.reload()
        collections.reload()
        dashboard.reload()
        app.remoteConfig.refresh()
    }
    function begin(): void {
        if (!shown)
            return
        if (collections === null)
            collections = app.makeDepartment(page, "")
        home.load()
        collections.load()
    }

    onShownChanged: begin()
    onLoadingChanged: if (!loading) complete = true
    Component.onCompleted: begin()

    // A store that keeps one waiting does not keep one from its collections.
    Timer {
        interval: 2500
        running: page.shown && !page.complete
        onTriggered: page.complete = true
    }

    OfflineStrip {
        id: strip

        // Also of what is shown from the last time, which begins at the first rail.
        readonly property string failure: page.home?.errorText
            || ((page.home?.count ?? 0) > 0 ? page.home.data(page.home.index(0, 0), HomeModel.RailRole).errorText : "")

        objectName: "strip"
        offline: page.home?.isOffline ?? false
        canRetry: true
        onRetry: page.reload()
        width: parent.width
        visible: page.hasContent && (offline || failure !== "")
        text: failure !== "" ? failure
                             : qsTranslate("Loomstreet", "You appear to be offline. Check your connection and try again.")
    }
    Flickable {
        id: flick

        objectName: "flick"
        anchors { left: parent.left; right: parent.right; top: strip.visible ? strip.bottom : parent.top; bottom: parent.bottom }
        visible: !page.failed && !page.empty
        contentHeight: column.height + column.y + Theme.space8
        boundsBehavior: Flickable.StopAtBounds
        ScrollBar.vertical: ScrollBar {}

        FocusFollower { flickable: flick }
        ColumnAnchor {
            flickable: flick
            column: column
        }

        Column {
            id: column

            x: page.padding
            y: Theme.space1
            width: flick.width - 2 * page.padding
            spacing: Theme.space4

            Column {
                width: parent.width
                visible: dashboard.filled || promo.filled
                spacing: Theme.space1

                DashboardStrip {
                    id: dashboard

                    objectName: "dashboard"
                    width: parent.width
                    app: page.app
                    session: page.session
                    router: page.router
                    live: page.shown && page.settled
                }
                PromoBanner {
                    id: promo

                    objectName: "promotion"
                    width: parent.width
                    narrow: page.narrow
                    promo: page.app.remoteConfig.promo
                    onOpened: page.router.openLink(promo.promo.link)
                }
            }
            Repeater {
                id: rails

                // The first one shows what it is about to.
                property bool settled: false

                model: page.home

                ProductRail {
                    id: shown

                    required property int index
                    required property RecoRail rail

                    objectName: "rail." + rail?.kind + (rail?.handle ? "." + rail.handle : "")
                    width: column.width
                    title: rail?.title ?? ""
                    note: rail?.note ?? ""
                    products: rail?.pieces ?? null
                    waiting: rail?.phase === RecoRail.Loading
                    hideable: true
                    wishlist: page.app.wishlist
                    previewed: page.previewed
                    onOpened: (handle, item, mode) => page.router.openPiece(handle, item, mode)
                    onHideAsked: (handle, title) => page.app.notInterested.hide(handle, title)
                    onAllAsked: page.router.openRail(rail.kind, rail.handle, rail.title)
                    onSettledChanged: rails.settled = rails.settled || settled
                    // Once made its cards stay.
                    near: false
                    readonly property bool reached: index * height < flick.contentY + 1.5 * flick.height
                    onReachedChanged: near = near || reached
                    Component.onCompleted: near = reached
                }
            }
            Column {
                width: parent.width
                visible: page.complete && (tiles.waiting || page.tileCount > 0)
                spacing: Theme.space2

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
        }
    }
    ErrorState {
        objectName: "error"
        anchors.centerIn: parent
        visible: page.failed
        width: Math.min(parent.width, 480)
        sentence: page.home?.errorText ?? ""
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
