import QtQml
import Loomstreet.Components
import Loomstreet.Model

// What the cards of the home's dashboard say, and where they lead, by the keys that the store orders them by.
QtObject {
    required property AppModel app
    required property Router router
    property OrdersModel orders: null
    property PriceDropsModel drops: null

    readonly property int cheaper: drops?.phase === PriceDropsModel.Loaded ? drops.pieces.count : 0

    function of(key: string): var {
        switch (key) {
        case "vessa": return { icon: "person.2", line: qsTranslate("Loomstreet", "Vessa"),
                sentence: qsTranslate("Loomstreet", "What others wear"), way: qsTranslate("Loomstreet", "Look around"),
                go: () => router.selectItem(10) }
        case "following": return { icon: "calendar", line: qsTranslate("Loomstreet", "Following", "sidebar.following"),
                sentence: qsTranslate("Loomstreet", "News from your designers"), way: qsTranslate("Loomstreet", "See what's new"),
                go: () => router.selectItem(16) }
        case "member": return ofMember()
        case "orders": return ofOrders()
        case "wishlist": return ofWishlist()
        case "closet": return { icon: "hanger", line: qsTranslate("Loomstreet", "Closet", "sidebar.closet"),
                sentence: qsTranslate("Loomstreet", "What should I wear today?"), way: qsTranslate("Loomstreet", "Open the closet"),
                go: () => router.selectItem(15) }
        default: return null
        }
    }
    function ofMember(): var {
        if (!app.auth.isSignedIn)
            return { icon: "person.crop.circle", line: qsTranslate("Loomstreet", "MyLST"),
                     sentence: qsTranslate("Loomstreet", "Your orders and alerts"), way: qsTranslate("Loomstreet", "Sign in"),
                     go: () => router.openAccount() }
        return { icon: "crown", line: app.auth.displayName || app.auth.email,
                 sentence: qsTranslate("Loomstreet", "Your membership"), way: qsTranslate("Loomstreet", "See what it brings"),
                 go: () => router.openMembership() }
    }
    function ofOrders(): var {
        if (!orders || orders.count === 0)
            return { icon: "shippingbox", line: qsTranslate("Loomstreet", "Orders"),
                     sentence: qsTranslate("Loomstreet", "Where is my package?"), way: qsTranslate("Loomstreet", "Track a package"),
                     go: () => router.openTracking() }
        const newest = orders.index(0, 0)
        const id = orders.data(newest, OrdersModel.OrderIdRole)
        return { icon: "shippingbox", line: qsTranslate("Loomstreet", "Order %1").arg(Bidi.isolate(orders.data(newest, OrdersModel.NameRole))),
                 sentence: orders.data(newest, OrdersModel.StatusRole), way: qsTranslate("Loomstreet", "See the order"),
                 go: () => router.openOrder(id) }
    }
    function ofWishlist(): var {
        if (cheaper > 0)
            return { icon: "chart.down", line: qsTranslate("Loomstreet", "Price drops"),
                     sentence: qsTranslate("Loomstreet", "Your pieces cost less now"),
                     way: qsTranslate("Loomstreet", "%Ln pieces", "", cheaper),
                     go: () => router.openPriceDrops() }
        const count = app.wishlist.count
        const saved = count === 0 ? qsTranslate("Loomstreet", "Keep what you love")
                    : qsTranslate("Loomstreet", "%Ln pieces saved", "", count)
        return { icon: "heart", line: qsTranslate("Loomstreet", "Wishlist"), sentence: saved,
                 way: qsTranslate("Loomstreet", "See the wishlist"), go: () => router.selectItem(13) }
    }
}
