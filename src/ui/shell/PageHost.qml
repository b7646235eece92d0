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
    required property int depth
    property bool isOnTop: false
    property bool tabSelected: false
    property bool near: true

    readonly property var entry: router ? router.page(depth) : null // the router may go first
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
        case PageKind.Explore: return app.makeDepartment(host, "")
        case PageKind.Department: return app.makeDepartment(host, entry.handle)
        case PageKind.Collection: return app.makeCollection(host, entry.handle, entry.title)
        case PageKind.Product: return app.makeProduct(host, entry.handle, entry.item)
        default: return null
        }
    }
    function pageFor(kind: int): string {
        switch (kind) {
        case PageKind.Explore: return "ExplorePage"
        case PageKind.Department: return "DepartmentPage"
        case PageKind.Collection: return "CollectionPage"
        case PageKind.Product: return "ProductPage"
        case PageKind.Cart: return "CartPage"
        case PageKind.StorePage: return "StorePage"
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
        depth: host.depth
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
            const place = host.router.scrollPosition(host.depth)
            if (place > 0)
                host.page.scrollTo(place)
            if (host.shown && host.activeFocus)
                host.page.takeFocus()
        }
    }
    Connections {
        target: host.page
        function onScrollYChanged(): void { host.router.setScrollPosition(host.depth, host.page.scrollY) }
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
