import QtQuick
import Loomstreet.Components
import Loomstreet.Model
import Loomstreet.Pages
import Loomstreet.Theme

// The place of one page in a tab's stack. It keeps the page's model and where it was scrolled to, also while the page
// itself is put away; nothing is built before it is first shown.
FocusScope {
    id: host

    required property AppModel app
    required property WindowSession session
    required property Router router
    required property int pageID
    required property int depth
    required property var entry // what the router says of the page
    property bool isOnTop: false
    property bool tabSelected: false
    property bool near: true

    readonly property bool shown: isOnTop && tabSelected
    readonly property PageBase page: loader.item as PageBase
    readonly property bool settled: page?.settled ?? false
    property bool wanted: false
    property int reloadKey: -1

    objectName: "page"

    function takeFocus(): void {
        host.forceActiveFocus()
        if (page)
            page.takeFocus()
    }
    // Called by the router for the page that is shown.
    function reload(): void {
        if (page)
            page.reload()
        PictureAddress.retryBroken()
    }
    function makeModel(): QtObject {
        switch (entry.kind) {
        case PageKind.Explore: return app.makeHome(host)
        case PageKind.Rail: return app.makeRecommendations(host, entry.handles[0], entry.handles[1], entry.title)
        case PageKind.Tools: return app.makeTools(host)
        case PageKind.Department: return app.makeDepartment(host, entry.handle)
        case PageKind.Brands: return app.makeBrands(host)
        case PageKind.Collection: return app.makeCollection(host, entry.handle, entry.title)
        case PageKind.Search: return app.makeSearch(host, entry.handle)
        case PageKind.Product: return app.makeProduct(host, entry.handle, entry.item)
        case PageKind.Wishlist: return app.makeWishlist(host)
        case PageKind.RecentlyViewed: return app.makeRecentlyViewed(host)
        case PageKind.PriceDrops: return app.makePriceDrops(host)
        case PageKind.Compare: return app.makeCompare(host, entry.handles)
        case PageKind.Orders: return app.makeOrders(host, entry.handle)
        case PageKind.Order: return app.makeOrder(host, entry.handle)
        case PageKind.Package: return app.makeTracking(host, entry.handle, entry.title)
        case PageKind.Tracking: return app.makeTracking(host, "", "")
        default: return null
        }
    }
    function pageFor(kind: int): string {
        switch (kind) {
        case PageKind.Explore: return "ExplorePage"
        case PageKind.Rail: return "RailPage"
        case PageKind.Department: return "DepartmentPage"
        case PageKind.Collection: return "CollectionPage"
        case PageKind.Product: return "ProductPage"
        case PageKind.Cart: return "CartPage"
        case PageKind.Search: return "SearchPage"
        case PageKind.Brands: return "BrandsPage"
        case PageKind.Wishlist: return "WishlistPage"
        case PageKind.RecentlyViewed: return "RecentlyViewedPage"
        case PageKind.PriceDrops: return "PriceDropsPage"
        case PageKind.Compare: return "ComparePage"
        case PageKind.Account: return "AccountPage"
        case PageKind.Orders: return "OrdersPage"
        case PageKind.Order: return "OrderPage"
        case PageKind.Package: return "PackagePage"
        case PageKind.Tracking: return "TrackingPage"
        case PageKind.Profile: return "ProfilePage"
        case PageKind.Alerts: return "AlertsPage"
        case PageKind.Tools: return "ToolsPage"
        case PageKind.Mira: return "MiraPage"
        case PageKind.Notifications: return "NotificationsPage"
        case PageKind.StorePage: return "StorePage"
        case PageKind.Paused: return "PausedPage"
        default: return "UnknownPage"
        }
    }
    function showOrHide(): void {
        if (shown && !wanted) {
            context.model = makeModel()
            wanted = true
        }
        if (shown && reloadKey < 0)
            reloadKey = router.addReloadHandler(host)
        else if (!shown && reloadKey >= 0) {
            router.removeReloadHandler(reloadKey)
            reloadKey = -1
        }
    }

    visible: isOnTop
    enabled: isOnTop

    onShownChanged: showOrHide()
    Component.onCompleted: showOrHide()
    Component.onDestruction: if (reloadKey >= 0 && router) router.removeReloadHandler(reloadKey)

    PageContext {
        id: context

        app: host.app
        session: host.session
        router: host.router
        pageID: host.pageID
        entry: host.entry
        shown: host.shown
    }
    // A page is compiled when the first of its kind is shown.
    Loader {
        id: loader

        readonly property bool wanted: host.wanted && (host.isOnTop || host.near)

        anchors.fill: parent
        focus: true
        asynchronous: true // between frames, so that a large page stops nothing
        onWantedChanged: {
            if (wanted)
                setSource("qrc:/qt/qml/Loomstreet/Pages/" + host.pageFor(host.entry.kind) + ".qml", { context: context })
            else
                source = ""
        }
        onLoaded: {
            const place = host.router.scrollPosition(host.pageID)
            if (place > 0)
                host.page.scrollTo(place)
            if (host.shown && host.activeFocus)
                host.page.takeFocus()
        }
    }
    Connections {
        target: host.page
        function onScrollYChanged(): void { host.router.setScrollPosition(host.pageID, host.page.scrollY) }
    }

    Connections {
        target: host.shown ? host.router : null
        function onSoftReloadTokenChanged(): void {
            if (host.page)
                host.page.refresh()
        }
    }

    // A new page fades in; one that was there before is simply there again.
    NumberAnimation on opacity {
        from: 0
        to: 1
        duration: host.depth > 0 ? Theme.durationPage : 0
    }
}
