import QtQuick
import Loomstreet.Model

// The pieces of a collection.
ListingPage {
    id: page

    readonly property CollectionModel collection: context.model

    title: phase === ProductListing.Missing ? qsTranslate("Loomstreet", "Not available")
         : collection?.title || (phase === ProductListing.Failed ? qsTranslate("Loomstreet", "Collection") : "")
    note: {
        const count = collection ? collection.totalCount : -1
        return count < 0 ? "" : count === 1 ? qsTranslate("Loomstreet", "1 piece")
                                            : qsTranslate("Loomstreet", "%1 pieces").arg(count)
    }

    words: ListingWords {
        missingTitle: qsTranslate("Loomstreet", "This collection isn't available")
        missingSentence: qsTranslate("Loomstreet", "It may have been renamed or isn't sold in ") + page.app.market.countryName
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
