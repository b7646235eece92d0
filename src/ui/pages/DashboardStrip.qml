pragma ComponentBehavior: Bound
import QtQuick
import Loomstreet.Components
import Loomstreet.Model
import Loomstreet.Theme

// The home's dashboard: small cards in the store's order, as many as there is room for and the rest behind an arrow;
// at the end what is in the bag.
Row {
    id: strip

    required property AppModel app
    required property WindowSession session
    required property Router router
    // It is looked at, and what is more urgent is there: it may ask for what its cards tell.
    property bool live: false

    readonly property var keys: app.remoteConfig.dashboard
    readonly property bool filled: keys.length > 0 || bagged
    readonly property int leastWidth: Math.max(200 * Theme.textScale, Math.min(widestWay, mostWidth))
    readonly property int mostWidth: 340 * Theme.textScale
    property int widestWay: 0
    property int lines: 1 // of the longest sentence
    readonly property bool bagged: app.cart.itemCount > 0 && app.cart.hasShipping
    readonly property int bagWidth: bagged ? Math.max(leastWidth, Math.min(Math.round(width * 0.32), 380 * Theme.textScale)) : 0
    readonly property int perView: {
        const most = Math.floor((width - bagWidth) / leastWidth)
        // Beside the arrow, too, the ways on are as wide as they need.
        return most >= keys.length ? Math.max(1, keys.length)
             : Math.max(1, Math.min(most, Math.floor((width - bagWidth - Theme.targetIcon) / Math.max(1, Math.min(widestWay, mostWidth)))))
    }
    readonly property bool paged: keys.length > perView
    readonly property int cell: Math.min(mostWidth, Math.floor((width - bagWidth - (paged ? Theme.targetIcon : 0)) / perView))
    // The first card in view; the last page is full, too.
    property int first: 0
    readonly property bool atEnd: first + perView >= keys.length

    readonly property bool wantsOrders: live && keys.indexOf("orders") >= 0 && app.auth.isSignedIn
    readonly property bool wantsDrops: live && keys.indexOf("wishlist") >= 0 && app.wishlist.count + app.recentlyViewed.count > 0

    function turn(): void { first = atEnd ? 0 : Math.min(first + perView, keys.length - perView) }
    function measure(): void {
        let most = bagged ? bag.ownLines : 1
        let widest = 0
        for (let i = 0; i < cards.count; ++i) {
            const card = cards.itemAt(i) as DashboardCard
            most = Math.max(most, card?.ownLines ?? 1)
            widest = Math.max(widest, Math.ceil(card?.wayWidth ?? 0))
        }
        lines = most
        widestWay = widest
    }
    function reload(): void {
        if (wantsOrders)
            app.orders.reload()
        if (words.drops)
            words.drops.reload()
    }

    visible: filled

    onWantsOrdersChanged: if (wantsOrders) app.orders.show()
    onWantsDropsChanged: {
        if (!wantsDrops)
            return
        if (words.drops === null)
            words.drops = app.makePriceDrops(strip)
        words.drops.load()
    }
    onPerViewChanged: first = Math.max(0, Math.min(first, keys.length - perView))
    onKeysChanged: first = 0
    onBaggedChanged: measure()
    Component.onCompleted: words.orders = app.makeOrders(strip, "")

    DashboardWords {
        id: words

        app: strip.app
        router: strip.router
    }
    Repeater {
        id: cards

        model: strip.keys
        onItemAdded: strip.measure()
        onItemRemoved: strip.measure()

        DashboardCard {
            id: card

            required property string modelData
            required property int index
            readonly property var facts: words.of(modelData)

            objectName: "dashboard." + modelData
            width: strip.cell
            visible: index >= strip.first && index < strip.first + strip.perView
            first: index === strip.first
            iconName: facts?.icon ?? ""
            line: facts?.line ?? ""
            sentence: facts?.sentence ?? ""
            text: facts?.way ?? ""
            lines: strip.lines
            onOwnLinesChanged: strip.measure()
            onWayWidthChanged: strip.measure()
            onClicked: facts.go()
        }
    }
    IconButton {
        objectName: "dashboardMore"
        anchors.verticalCenter: parent.verticalCenter
        visible: strip.paged
        iconName: strip.atEnd ? "chevron.left" : "chevron.right"
        iconSize: 16
        text: strip.atEnd ? qsTranslate("Loomstreet", "Back to the first") : qsTranslate("Loomstreet", "Next")
        onClicked: strip.turn()
    }
    DashboardCard {
        id: bag

        objectName: "dashboard.bag"
        width: strip.bagWidth
        visible: strip.bagged
        first: strip.keys.length === 0
        last: true
        iconName: "bag"
        line: strip.app.cart.itemCountText
        sentence: strip.app.cart.shippingText
        lines: strip.lines
        onOwnLinesChanged: strip.measure()
        onClicked: strip.session.isCartOpen = true

        Meter {
            anchors { left: parent.left; right: sum.left; rightMargin: Theme.space1_5; verticalCenter: parent.verticalCenter }
            value: strip.app.cart.shippingFraction
            name: strip.app.cart.shippingText
        }
        TextLabel {
            id: sum

            anchors { right: parent.right; verticalCenter: parent.verticalCenter }
            text: strip.app.cart.subtotal
            type: Theme.type.small
            figures: true
        }
    }
}
