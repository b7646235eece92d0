import QtQuick
import Loomstreet.Components
import Loomstreet.Model

// In the place of a piece that cannot be had. What it holds leads on.
EmptyState {
    required property MarketStore market

    iconName: "hanger"
    title: qsTranslate("Loomstreet", "This piece isn't available")
    sentence: qsTranslate("Loomstreet", "It may be sold out for good, or isn't sold in %1.").arg(market.countryName)
}
