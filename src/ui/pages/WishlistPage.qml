import QtQuick
import Loomstreet.Components

// The pieces the shopper saved.
KeptPage {
    id: page

    title: qsTranslate("Loomstreet", "Wishlist")
    kept: app.wishlist
    sortable: true
    emptyIcon: "heart"
    emptyTitle: qsTranslate("Loomstreet", "Nothing saved yet")
    emptySentence: qsTranslate("Loomstreet", "Press the heart on a piece and it waits for you here. We watch its price, too.")

    links: [
        PushButton {
            objectName: "priceDrops"
            size: "small"
            kind: "quiet"
            iconName: "chart.down"
            text: qsTranslate("Loomstreet", "Price drops")
            onClicked: page.router.openPriceDrops()
        },
        PushButton {
            objectName: "recentlyViewed"
            size: "small"
            kind: "quiet"
            iconName: "footprints"
            text: qsTranslate("Loomstreet", "Recently viewed")
            onClicked: page.router.openRecentlyViewed()
        }
    ]
}
