import QtQuick
import Loomstreet.Model

// What a search has found.
ListingPage {
    id: page

    readonly property SearchModel search: context.model
    readonly property string query: search?.query ?? ""
    // The curly marks of a quotation, which stay as they are in every language.
    readonly property string quoted: "“" + query + "”"

    title: blank ? qsTranslate("Loomstreet", "Search") : quoted
    blank: query === ""
    heading: {
        const count = search ? search.totalCount : -1
        return count < 0 ? quoted : count === 1 ? qsTranslate("Loomstreet", "1 result for “") + query + "”"
                                                : qsTranslate("Loomstreet", "%1 results for “").arg(count) + query + "”"
    }
    collections: search ? search.collections : []

    words: ListingWords {
        emptyIcon: "magnifyingglass"
        emptyTitle: page.blank ? qsTranslate("Loomstreet", "What are you looking for?")
                               : qsTranslate("Loomstreet", "No results for “") + page.query + "”"
        emptySentence: page.blank ? "" : qsTranslate("Loomstreet", "Check the spelling, try a broader word, or browse New In.")
        filteredTitle: qsTranslate("Loomstreet", "Nothing matches these filters")
        filteredSentence: qsTranslate("Loomstreet", "Remove a filter or two to see more of “") + page.query + "”"
        ways: [
            { text: qsTranslate("Loomstreet", "New In"), go: () => page.router.selectItem(1) },
            { text: qsTranslate("Loomstreet", "Explore"), go: () => page.router.selectItem(0) }
        ]
    }
}
