import QtQml
import Loomstreet.Model

// How many pieces of a designer are there and how many are new, on the page of a list that bears the designer's name.
QtObject {
    id: count

    required property PageContext context
    property ProductListing listing
    property string name

    // A list of that name whose first piece is theirs.
    readonly property string designer: {
        const products = listing ? listing.products : null
        const first = products && products.count > 0 ? products.data(products.index(0, 0), ProductListModel.DesignerRole) : ""
        return first.toLowerCase() === name.toLowerCase() ? first : ""
    }
    readonly property BrandCounters counters: context.beside
    readonly property bool narrowed: (listing?.filters.selectedCount ?? 0) > 0
    // Of all their pieces: nothing is told of what filters leave of them.
    readonly property int items: narrowed ? 0 : counters?.items ?? 0
    readonly property int newItems: narrowed ? 0 : counters?.newItems ?? 0

    function begin(): void {
        if (designer === "" || context.beside !== null)
            return
        context.beside = context.app.makeBrandCounters(context, designer)
        context.beside.load()
    }

    onDesignerChanged: begin()
    Component.onCompleted: begin()
}
