import QtQuick
import Loomstreet.Model

// The pieces of a collection. That of a designer tells how many of them are new.
ListingPage {
    id: page

    readonly property CollectionModel collection: context.model
    readonly property DesignerCount designer: DesignerCount {
        context: page.context
        listing: page.collection
        name: page.title
    }
    readonly property string counted: {
        const total = collection ? collection.totalCount : -1
        const count = total >= 0 ? total : designer.items > 0 ? designer.items : -1
        return count < 0 ? "" : qsTranslate("Loomstreet", "%Ln pieces", "", count)
    }

    title: phase === ProductListing.Missing ? qsTranslate("Loomstreet", "Not available")
         : collection?.title || (phase === ProductListing.Failed ? qsTranslate("Loomstreet", "Collection") : "")
    note: designer.newItems > 0 && counted !== ""
          ? counted + " · " + qsTranslate("Loomstreet", "%Ln new in the last 30 days", "", designer.newItems) : counted

    words: ListingWords {
        missingTitle: qsTranslate("Loomstreet", "This collection isn't available")
        missingSentence: qsTranslate("Loomstreet", "It may have been renamed or isn't sold in %1").arg(page.app.market.countryName)
        emptyTitle: qsTranslate("Loomstreet", "Nothing here yet")
        emptySentence: qsTranslate("Loomstreet", "New pieces arrive every week.")
        filteredTitle: qsTranslate("Loomstreet", "No items match these filters")
        filteredSentence: qsTranslate("Loomstreet", "Remove a filter to see more.")
        ways: [
            { text: qsTranslate("Loomstreet", "Explore"), go: () => page.router.selectItem(0) },
            { text: qsTranslate("Loomstreet", "Designers"), go: () => page.router.openLink("/pages/brands-at-loomstreet") }
        ]
    }
}
