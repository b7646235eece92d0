pragma ComponentBehavior: Bound
import QtQuick
import Loomstreet.Model
import Loomstreet.Theme

// The pieces that go with a piece, below what there is to tell of it. Until they are known their room is kept.
Column {
    id: rails

    property ProductCompanions companions
    // Where the hearts of their cards keep them.
    property WishlistStore wishlist: null
    // The piece that is shown beside the page.
    property string previewed

    readonly property bool awaited: companions ? companions.isAwaited : true
    readonly property bool recommended: companions ? companions.alsoViewed.count + companions.outfit.count > 0 : false

    signal opened(string handle, var item, int mode)
    signal hideAsked(string handle, string title)

    spacing: Theme.space4

    component CompanionRail: ProductRail {
        width: rails.width
        allText: ""
        waiting: rails.awaited && rails.companions !== null
        hideable: true
        wishlist: rails.wishlist
        previewed: rails.previewed
        onOpened: (handle, item, mode) => rails.opened(handle, item, mode)
        onHideAsked: (handle, title) => rails.hideAsked(handle, title)
    }

    CompanionRail {
        objectName: "outfit"
        title: qsTranslate("Loomstreet", "Complete the look")
        note: qsTranslate("Loomstreet", "Pieces to wear with it")
        products: rails.companions ? rails.companions.outfit.pieces : null
    }
    CompanionRail {
        objectName: "alsoViewed"
        title: qsTranslate("Loomstreet", "Also admired")
        note: qsTranslate("Loomstreet", "By those who looked at this piece")
        products: rails.companions ? rails.companions.alsoViewed.pieces : null
    }
    // The catalog's own, which nobody needs to wait for a second time.
    CompanionRail {
        objectName: "similar"
        title: qsTranslate("Loomstreet", "You may also like")
        products: rails.companions ? rails.companions.similar : null
        waiting: false
        hideable: false
        visible: !rails.recommended && count > 0
    }
}
