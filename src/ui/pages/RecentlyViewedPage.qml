import QtQuick
import Loomstreet.Components

// The pieces the shopper looked at, the latest first.
KeptPage {
    id: page

    title: qsTranslate("Loomstreet", "Recently viewed")
    kept: app.recentlyViewed
    removable: true
    clearText: qsTranslate("Loomstreet", "Clear all")
    emptyIcon: "footprints"
    emptyTitle: qsTranslate("Loomstreet", "No footprints yet")
    emptySentence: qsTranslate("Loomstreet", "The pieces you look at gather here, so that you find back to them.")

    links: [
        PushButton {
            objectName: "priceDrops"
            size: "small"
            kind: "quiet"
            iconName: "chart.down"
            text: qsTranslate("Loomstreet", "Price drops")
            onClicked: page.router.openPriceDrops()
        }
    ]
}
