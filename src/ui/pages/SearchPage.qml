import QtQuick
import Loomstreet.Model

// What a search has found, and in a sentence how it was understood.
ListingPage {
    id: page

    readonly property SearchModel search: context.model
    readonly property string query: search?.query ?? ""
    // The curly marks of a quotation, which stay as they are in every language.
    readonly property string quoted: qsTranslate("Loomstreet", "“%1”").arg(query)
    readonly property DesignerCount designer: DesignerCount {
        context: page.context
        listing: page.search
        name: page.query
    }
    // What came of the search, once it is known.
    property string outcome

    function tell(): void {
        if (search.isLoading || (phase !== ProductListing.Loaded && phase !== ProductListing.Empty))
            outcome = ""
        else if (phase === ProductListing.Loaded)
            outcome = summary === "" ? heading : heading + ". " + summary
        else
            outcome = search.filters.selectedCount > 0 ? words.filteredTitle : words.emptyTitle
    }

    title: blank ? qsTranslate("Loomstreet", "Search") : quoted
    blank: query === ""
    heading: {
        const count = search ? search.totalCount : -1
        return count < 0 ? quoted : qsTranslate("Loomstreet", "%Ln results for “%1”", "", count).arg(query)
    }
    lined: !blank
    summary: {
        const understood = search?.summary ?? ""
        if (designer.newItems === 0)
            return understood
        const news = qsTranslate("Loomstreet", "%Ln new in the last 30 days", "", designer.newItems)
        return understood === "" ? news : understood + " · " + news
    }
    collections: search ? search.collections : []

    words: ListingWords {
        emptyIcon: "magnifyingglass"
        emptyTitle: page.blank ? qsTranslate("Loomstreet", "What are you looking for?")
                               : qsTranslate("Loomstreet", "No results for “%1”").arg(page.query)
        emptySentence: page.blank ? "" : qsTranslate("Loomstreet", "Check the spelling, try a broader word, or browse New In.")
        filteredTitle: qsTranslate("Loomstreet", "Nothing matches these filters")
        filteredSentence: qsTranslate("Loomstreet", "Remove a filter or two to see more of “%1”").arg(page.query)
        ways: [
            { text: qsTranslate("Loomstreet", "New In"), go: () => page.router.selectItem(1) },
            { text: qsTranslate("Loomstreet", "Explore"), go: () => page.router.selectItem(0) }
        ]
    }

    Connections {
        target: page.search
        function onChanged(): void { page.tell() }
    }
    // Said to those who do not see that results have come.
    Item {
        objectName: "outcome"
        visible: page.shown && page.outcome !== ""

        Accessible.role: Accessible.AlertMessage
        Accessible.name: page.outcome
    }
}
