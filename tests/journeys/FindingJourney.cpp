#include "kit/Journey.h"
#include "storage/Preferences.h"

namespace loom
{

namespace
{

const QString dress = QStringLiteral("Sabine bias slip dress");
const QString dressCard = QStringLiteral("card.sabine-bias-slip-dress");
const QString dressLink = QStringLiteral("/products/sabine-bias-slip-dress");

class FindingJourney : public Journey
{
protected:
    void openDresses()
    {
        start(QStringLiteral("/collections/dresses"));
        window.awaitPage(QStringLiteral("Dresses"));
    }
    /// Presses the dress's card, which brings it beside the page.
    void lookAtDress() const
    {
        EXPECT_FALSE(window.find(QStringLiteral("preview")));
        window.click(dressCard);
        window.awaitText(dress, window.await(QStringLiteral("preview")));
    }
    void choose(const QString& filter, const QString& value) const
    {
        window.click(QStringLiteral("value.filter.") + filter + QLatin1Char('.') + value);
    }
    /// Shows also those of a filter's values that are not there at first.
    void showAll(const QString& filter) const
    {
        window.click(window.await(QStringLiteral("more"), window.await(QStringLiteral("filter.filter.") + filter)));
    }
    /// Types a bound of the price, and leaves the field by a key.
    void bound(const QString& name, const QString& amount, const QString& key) const
    {
        window.click(window.await(QStringLiteral("input"), window.await(name)));
        window.press(QStringLiteral("Ctrl+A"));
        window.type(amount);
        window.press(key);
    }
    /// What the cards on the screen cost, in their order.
    [[nodiscard]] std::vector<double> prices() const
    {
        std::vector<double> amounts;
        for (const QQuickItem* const card : window.findInOrder(QStringLiteral("card.")))
            amounts.push_back(card->property("price").toString().remove(u'$').toDouble());
        return amounts;
    }
    /// Every price on the page on top is in yen. Texts that begin so are prices.
    void awaitYen(const QString& price) const
    {
        const auto isDollars = [](const QString& text) {
            return text.startsWith(u'$');
        };
        window.awaitText(price);
        waitUntil([&] { return std::ranges::none_of(window.texts(), isDollars); }, "no price is in dollars");
    }
};

TEST_F(FindingJourney, ADepartmentADesignerASearchAndALinkLeadToThePiece)
{
    start();
    window.awaitPage(QStringLiteral("Explore"));
    window.click(QStringLiteral("section.women"));
    window.awaitPage(QStringLiteral("Women"));
    window.click(QStringLiteral("tile.dresses"));
    window.awaitPage(QStringLiteral("Dresses"));
    lookAtDress();

    // The designer, by the letter and by the name.
    window.click(QStringLiteral("section.brands"));
    window.awaitPage(QStringLiteral("Designers"));
    window.awaitText(QStringLiteral("26 designers"));
    window.click(QStringLiteral("letter.T"));
    waitUntil([this] { return window.await(QStringLiteral("letter.T"))->property("current").toBool(); }, "T is marked");
    window.await(QStringLiteral("brand.Tallis & Rook"), window.await(QStringLiteral("section.T")));
    window.click(window.await(QStringLiteral("input"), window.await(QStringLiteral("filter"))));
    window.type(QStringLiteral("tall"));
    window.awaitGone(QStringLiteral("brand.Aldine Row"));
    window.press(QStringLiteral("Return"));
    window.awaitPage(QStringLiteral("“Tallis & Rook”"));
    window.click(QStringLiteral("collection.tallis-rook"));
    window.awaitPage(QStringLiteral("Tallis & Rook"));
    window.awaitText(QStringLiteral("17 pieces · 2 new in the last 30 days"));
    lookAtDress();

    // Words, and of what they find what is there in a size and a colour.
    window.press(QStringLiteral("Ctrl+Shift+W"));
    follow(QStringLiteral("silk dress"));
    window.awaitText(QStringLiteral("24 results for “silk dress”"));
    window.awaitText(QStringLiteral("24 pieces: silk dresses"));
    window.click(QStringLiteral("filters"));
    choose(QStringLiteral("v.option.size"), QStringLiteral("xxs"));
    showAll(QStringLiteral("v.option.colour"));
    choose(QStringLiteral("v.option.colour"), QStringLiteral("sage"));
    window.awaitText(QStringLiteral("Sage"), window.await(QStringLiteral("chip.1")));
    window.awaitNoText(QStringLiteral("24 results for “silk dress”"));
    window.awaitNoText(QStringLiteral("24 pieces: silk dresses")); // filters are the catalog's own
    window.awaitText(QStringLiteral("3 results for “silk dress”"));
    lookAtDress();

    follow(QStringLiteral(" LOOMSTREET://collections/dresses/products/sabine-bias-slip-dress?variant=1#sizes"));
    window.awaitPage(dress);
    window.awaitText(QStringLiteral("3,235 sold"));
    const auto isDressed = [this] {
        return !window.findInOrder(QStringLiteral("card."), window.find(QStringLiteral("outfit"))).isEmpty();
    };
    waitUntil(isDressed, "pieces to wear with it are there");
}

TEST_F(FindingJourney, ACollectionIsNarrowedDownAndWidenedAgain)
{
    openDresses();
    window.awaitText(QStringLiteral("92 pieces"));
    window.click(QStringLiteral("filters"));
    showAll(QStringLiteral("p.vendor"));
    choose(QStringLiteral("p.vendor"), QStringLiteral("tallis-rook"));
    window.awaitText(QStringLiteral("8 pieces"));
    bound(QStringLiteral("priceMin"), QStringLiteral("200"), QStringLiteral("Tab"));
    bound(QStringLiteral("priceMax"), QStringLiteral("240"), QStringLiteral("Return"));
    window.awaitText(QStringLiteral("5 pieces"));
    window.awaitText(QStringLiteral("Tallis & Rook"), window.await(QStringLiteral("chip.0")));
    window.awaitText(QStringLiteral("$200 – $240"), window.await(QStringLiteral("chip.1")));
    window.awaitText(QStringLiteral("You've seen all 5"));
    // The other designers' numbers follow the price.
    const auto wharf = QStringLiteral("value.filter.p.vendor.little-wharf");
    EXPECT_EQ(accessibleName(window.await(wharf)), QStringLiteral("Little Wharf, 0 pieces"));

    window.click(QStringLiteral("sort"));
    window.click(QStringLiteral("sort.2"));
    const auto isSorted = [this] {
        return prices() == std::vector<double>{210, 216, 224, 232.5, 240};
    };
    waitUntil(isSorted, "the cheapest comes first");

    // All of it is there on the way back, without a question to the store.
    const int asked = store.count(QStringLiteral("CollectionProducts"));
    window.click(window.findInOrder(QStringLiteral("card.")).front());
    window.await(QStringLiteral("preview"));
    window.press(QStringLiteral("Ctrl+Shift+Return"));
    window.awaitGone(QStringLiteral("chip.1"));
    window.press(QStringLiteral("Alt+Left"));
    window.awaitText(QStringLiteral("$200 – $240"), window.await(QStringLiteral("chip.1")));
    waitUntil(isSorted, "the cheapest comes first again");
    EXPECT_EQ(store.count(QStringLiteral("CollectionProducts")), asked);

    // Too narrow.
    bound(QStringLiteral("priceMax"), QStringLiteral("205"), QStringLiteral("Return"));
    window.awaitText(QStringLiteral("No items match these filters"));
    window.awaitText(QStringLiteral("Remove a filter to see more."));
    window.click(QStringLiteral("clearAll"));
    window.awaitText(QStringLiteral("92 pieces"));
    EXPECT_FALSE(window.find(QStringLiteral("chip.0")));
    choose(QStringLiteral("v.option.size"), QStringLiteral("xxs"));
    window.awaitText(QStringLiteral("64 pieces"));
    window.click(QStringLiteral("chip.0"));
    window.awaitText(QStringLiteral("92 pieces"));
}

TEST_F(FindingJourney, AnotherMarketChangesEveryPriceOnEveryOpenPage)
{
    openDresses();
    window.click(window.await(QStringLiteral("save"), window.await(dressCard)));
    window.click(window.await(QStringLiteral("save"), window.await(QStringLiteral("card.odile-tiered-dress"))));
    window.press(QStringLiteral("Ctrl+T"));
    follow(dressLink);
    window.awaitPage(dress);
    window.click(QStringLiteral("size.M"));
    window.click(QStringLiteral("addToCart"));
    window.await(QStringLiteral("lineTitle"), window.await(QStringLiteral("cartPanel")));
    window.press(QStringLiteral("Esc"));
    window.press(QStringLiteral("Ctrl+T"));
    window.click(QStringLiteral("section.cart"));
    window.awaitText(QStringLiteral("$248.00"));
    window.press(QStringLiteral("Ctrl+T"));
    window.click(QStringLiteral("section.wishlist"));
    window.awaitPage(QStringLiteral("Wishlist"));
    window.click(QStringLiteral("pick"));
    window.click(dressCard);
    window.click(QStringLiteral("card.odile-tiered-dress"));
    window.click(QStringLiteral("compare"));
    window.awaitPage(QStringLiteral("Compare"));
    window.awaitText(QStringLiteral("$312.00"));
    window.press(QStringLiteral("Ctrl+T"));
    window.click(QStringLiteral("section.wishlist"));
    window.awaitPage(QStringLiteral("Wishlist"));
    window.awaitText(QStringLiteral("$248.00"));

    window.click(QStringLiteral("market"));
    window.awaitFocus(QStringLiteral("filter"));
    window.type(QStringLiteral("japan"));
    window.press(QStringLiteral("Return"));
    window.awaitText(QStringLiteral("Japan · JPY"));
    // From the wishlist once around: the collection, the piece, the bag and the comparison.
    awaitYen(QStringLiteral("¥37,100"));
    for (int tab = 0; tab < 4; ++tab) {
        window.click(QStringLiteral("tab%1").arg(tab));
        awaitYen(QStringLiteral("¥37,100"));
    }
    window.awaitText(QStringLiteral("¥46,600"));
    EXPECT_EQ(store.carts().at(0)[u"country"], QStringLiteral("JP"));
    EXPECT_EQ(shop->model().preferences().value(preferences::marketCurrency), QStringLiteral("JPY"));
}

} // namespace

} // namespace loom
