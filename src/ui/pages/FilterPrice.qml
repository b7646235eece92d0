import QtQuick
import Loomstreet.Components
import Loomstreet.Model
import Loomstreet.Theme

// The bounds of the price, in the currency of the pieces that are shown. They count once they have been typed.
Disclosure {
    id: group

    required property FilterModel filters
    required property string label
    required property string lowest
    required property string highest

    function send(): void { filters.setPriceText(from.text, upTo.text) }

    objectName: "filter.price"
    title: {
        if (filters.currency === "")
            return label
        const language = Qt.locale().name.slice(0, 2)
        if (language === "ja" || language === "zh")
            return label + "（" + filters.currency + "）"
        return label + (language === "ar" ? "، " : ", ") + filters.currency
    }
    expanded: true

    Row {
        width: parent.width
        spacing: Theme.space1_5

        FilterBound {
            id: from

            objectName: "priceMin"
            width: (parent.width - parent.spacing) / 2
            label: qsTranslate("Loomstreet", "From")
            bound: group.filters.priceMin
            placeholderText: group.lowest
            onSent: group.send()
        }
        FilterBound {
            id: upTo

            objectName: "priceMax"
            width: (parent.width - parent.spacing) / 2
            label: qsTranslate("Loomstreet", "Up to")
            bound: group.filters.priceMax
            placeholderText: group.highest
            onSent: group.send()
        }
    }
}
