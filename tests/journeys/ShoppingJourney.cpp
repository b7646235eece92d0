#include "commerce/CartStore.h"
#include "kit/Journey.h"

namespace loom
{

namespace
{

const QString site = QStringLiteral("https://www.loomstreet.example");
const QString dress = QStringLiteral("Sabine bias slip dress");
const QString skirt = QStringLiteral("Pleated mini skirt");
const QString change = QStringLiteral("CartLinesUpdate");

/// The bag, from a chosen size until it is as the shopper wants it.
class ShoppingJourney : public Journey
{
protected:
    void open(const QString& path, const QString& title)
    {
        start(site + path);
        window.awaitPage(title);
    }
    void openDress() { open(QStringLiteral("/products/sabine-bias-slip-dress"), dress); }

    /// Puts the size of the piece that is shown into the bag, which opens.
    void add(const QString& size) const
    {
        window.click(QStringLiteral("size.") + size);
        window.click(QStringLiteral("addToCart"));
        window.await(QStringLiteral("lineTitle"), bag());
    }
    void fillAndShow(int lines)
    {
        shop->leaveCart(shop->anyPieces(lines));
        shop->model().cartStore().refresh();
        waitUntil([this] { return shop->model().cartStore().cart().has_value(); }, "the bag is there");
    }

    [[nodiscard]] QQuickItem* bag() const { return window.await(QStringLiteral("cartPanel")); }
    /// A line of the bag, by the title of its piece.
    [[nodiscard]] QQuickItem* row(const QString& title) const
    {
        QQuickItem* found = nullptr;
        const auto look = [&] {
            for (QQuickItem* const words : window.findAll(QStringLiteral("lineTitle"))) {
                if (words->property("text") == title)
                    found = words;
            }
            return found != nullptr;
        };
        waitUntil(look, title.toStdString() + " is in the bag");
        while (!found->property("lineId").isValid())
            found = found->parentItem();
        return found;
    }
    /// Clicks so quickly that all of them count as one wish.
    void clickQuickly(const QString& name, const QQuickItem* below, int times) const
    {
        QQuickItem* const button = window.await(name, below);
        window.awaitFrame();
        window.reveal(button);
        const QPointF middle = button->mapToScene(QPointF(button->width() / 2, button->height() / 2));
        for (int i = 0; i < times; ++i)
            window.clickAt(middle);
    }
    /// The bag's button and the section at the side tell the same number.
    void awaitCounts(const QString& count) const
    {
        window.awaitText(count, window.await(QStringLiteral("bag")));
        window.awaitText(count, window.await(QStringLiteral("section.cart")));
    }
    void applyCode(const QString& code) const
    {
        QQuickItem* const field = window.await(QStringLiteral("input"), window.await(QStringLiteral("code")));
        window.click(field);
        QMetaObject::invokeMethod(field, "selectAll");
        window.type(code);
        window.press(QStringLiteral("Return"));
    }
    [[nodiscard]] QString lineOf(const QString& name) const { return accessibleName(window.await(name)); }
};

TEST_F(ShoppingJourney, AChosenSizeGoesIntoTheBagAndItsNumberChanges)
{
    openDress();
    window.click(QStringLiteral("addToCart"));
    window.awaitText(QStringLiteral("Choose a size first."));
    EXPECT_EQ(shop->model().cartStore().cart(), std::nullopt);
    window.click(QStringLiteral("size.M"));
    window.awaitNoText(QStringLiteral("Choose a size first."));
    window.click(QStringLiteral("addToCart"));

    window.awaitText(QStringLiteral("Added"), bag());
    window.awaitText(QStringLiteral("1 item in your cart"));
    window.awaitText(QStringLiteral("Import duties included · Shipping calculated at checkout"));
    awaitCounts(QStringLiteral("1"));
    EXPECT_EQ(lineOf(QStringLiteral("subtotal")), QStringLiteral("Subtotal $248.00"));

    // Five clicks at once are one wish: the row shows it before the store has heard of it.
    const QString variant = shop->model().cartStore().cart()->lines.front().variantID;
    store.setStock(variant, 50);
    QQuickItem* const line = row(dress);
    const QString fault = store.fail({.kind = QStringLiteral("stall"), .operation = change});
    clickQuickly(QStringLiteral("more"), line, 5);
    EXPECT_TRUE(window.shows(QStringLiteral("6"), line));
    waitUntil([line] { return line->property("busy").toBool(); }, "the row is locked");
    clickQuickly(QStringLiteral("more"), line, 1);
    EXPECT_TRUE(window.shows(QStringLiteral("6"), line));
    EXPECT_TRUE(window.shows(QStringLiteral("1 item in your cart")));
    store.lift(fault);
    waitUntil([line] { return !line->property("busy").toBool(); }, "the row is free again");
    window.awaitText(QStringLiteral("6 items in your cart"));
    EXPECT_EQ(store.count(change), 1);
    EXPECT_EQ(lineOf(QStringLiteral("total")), QStringLiteral("Total $1,488.00"));
    awaitCounts(QStringLiteral("6"));

    // There are not as many as the shopper wants.
    store.setStock(variant, 7);
    clickQuickly(QStringLiteral("more"), line, 3);
    window.awaitText(QStringLiteral("Only 7 left"), line);
    awaitCounts(QStringLiteral("7"));
    store.setStock(variant, 0);
    clickQuickly(QStringLiteral("less"), line, 1);
    window.awaitText(QStringLiteral("Sold out"), line);
}

TEST_F(ShoppingJourney, WhatWasTakenOutComesBack)
{
    open(QStringLiteral("/products/pleated-mini-skirt"), skirt);
    add(QStringLiteral("36"));
    window.awaitText(QStringLiteral("Add $77.00 more for FREE worldwide shipping"));
    clickQuickly(QStringLiteral("more"), row(skirt), 4);
    window.awaitText(QStringLiteral("You've unlocked FREE worldwide shipping"));
    window.click(window.await(QStringLiteral("remove"), row(skirt)));
    window.awaitText(QStringLiteral("Your cart is empty"));
    window.awaitText(skirt + QStringLiteral(" was taken out."));
    window.awaitGone(QStringLiteral("badge"), window.await(QStringLiteral("bag")));
    window.click(window.await(QStringLiteral("act"), window.await(QStringLiteral("undo"))));
    window.awaitText(QStringLiteral("5 items in your cart"));
    window.awaitGone(QStringLiteral("undo"));

    // The last of them goes with the stepper too.
    for (int i = 0; i < 5; ++i)
        clickQuickly(QStringLiteral("less"), row(skirt), 1);
    window.awaitText(QStringLiteral("Items you add will show up here."));
    window.click(QStringLiteral("continueEmpty"));
    window.awaitGone(QStringLiteral("cartPanel"));
    EXPECT_EQ(window.window()->title(), skirt + QStringLiteral(" – LOOMSTREET"));
}

TEST_F(ShoppingJourney, ACodeIsRefusedOrTakenAndGivenBack)
{
    openDress();
    add(QStringLiteral("M"));
    applyCode(QStringLiteral("  Spring20 "));
    window.awaitText(QStringLiteral("“Spring20” doesn't apply to the items in your cart."));
    EXPECT_EQ(store.count(QStringLiteral("ApplyDiscount")), 2);
    EXPECT_TRUE(store.carts().at(0)[u"code"].isNull());

    const QString fault = store.fail({.kind = QStringLiteral("status"), .operation = QStringLiteral("ApplyDiscount")});
    applyCode(QStringLiteral("WELCOME10"));
    window.awaitText(QStringLiteral("Couldn't apply that code. Try again."));
    store.lift(fault);
    applyCode(QStringLiteral("welcome10"));
    window.awaitText(QStringLiteral("WELCOME10"), window.await(QStringLiteral("appliedCode")));
    EXPECT_EQ(lineOf(QStringLiteral("discount")), QStringLiteral("Discount -$24.80"));
    EXPECT_EQ(lineOf(QStringLiteral("total")), QStringLiteral("Total $223.20"));
    window.click(QStringLiteral("appliedCode"));
    window.await(QStringLiteral("code"));
    window.awaitGone(QStringLiteral("discount"));
    EXPECT_EQ(lineOf(QStringLiteral("total")), QStringLiteral("Total $248.00"));
}

TEST_F(ShoppingJourney, TheBagBecomesAPageAndADrawerAgain)
{
    openDress();
    window.click(QStringLiteral("bag"));
    window.awaitText(QStringLiteral("Your cart is empty"));
    EXPECT_EQ(store.count(QStringLiteral("GetCart")), 0);
    window.press(QStringLiteral("Esc"));
    window.awaitGone(QStringLiteral("cartPanel"));
    add(QStringLiteral("M"));
    window.click(QStringLiteral("expandCart"));
    window.awaitPage(QStringLiteral("Cart"));
    window.awaitGone(QStringLiteral("cartPanel"));
    static_cast<void>(row(dress));
    window.click(QStringLiteral("showAsDrawer"));
    static_cast<void>(bag());
    window.awaitPage(dress);
    window.click(window.await(QStringLiteral("continue"), bag()));
    window.awaitGone(QStringLiteral("cartPanel"));

    // A piece of the bag leads to its page.
    follow(site + QStringLiteral("/collections/bags"));
    window.awaitPage(QStringLiteral("Bags"));
    window.click(QStringLiteral("bag"));
    window.click(window.await(QStringLiteral("piece"), row(dress)));
    window.awaitPage(dress);
    window.awaitGone(QStringLiteral("cartPanel"));
}

TEST_F(ShoppingJourney, ABagThatCannotBeSeenIsSafe)
{
    openDress();
    shop->leaveCart(shop->anyPieces(3));
    window.click(QStringLiteral("section.cart"));
    window.awaitPage(QStringLiteral("Cart"));
    const QString fault = store.fail({.kind = QStringLiteral("drop"), .operation = QStringLiteral("GetCart")});
    window.press(QStringLiteral("F5"));
    window.awaitText(QStringLiteral("Couldn't load your cart"));
    window.awaitText(QStringLiteral("Your items are safe. Check your connection and try again."));
    store.lift(fault);
    window.awaitFocus(QStringLiteral("retry"));
    window.press(QStringLiteral("Return"));
    window.awaitText(QStringLiteral("3 items in your cart"));

    // Once it is shown it stays, whatever fails; and what fails says so.
    const QString everything = store.fail(
        {.kind = QStringLiteral("status"), .path = QStringLiteral("/api/2025-04/graphql.json"), .status = 403});
    clickQuickly(QStringLiteral("more"), window.await(QStringLiteral("cartLines")), 1);
    window.awaitText(QStringLiteral("That didn't work. Try again."));
    window.awaitText(QStringLiteral("3 items in your cart"));
    store.lift(everything);
    clickQuickly(QStringLiteral("more"), window.await(QStringLiteral("cartLines")), 1);
    window.awaitText(QStringLiteral("4 items in your cart"));
    window.awaitGone(QStringLiteral("cartError"));
}

TEST_F(ShoppingJourney, TheLinesOfAnExpiredBagAreOfferedBack)
{
    openDress();
    fillAndShow(3);
    store.expireCarts();
    window.click(QStringLiteral("swatch.Butter"));
    add(QStringLiteral("S"));
    window.awaitText(QStringLiteral("1 item in your cart"));
    window.awaitText(QStringLiteral("Your earlier cart has expired. 3 items were in it."));
    window.click(window.await(QStringLiteral("act"), window.await(QStringLiteral("lost"))));
    window.awaitText(QStringLiteral("4 items in your cart"));
    window.awaitGone(QStringLiteral("lost"));
    EXPECT_EQ(store.count(QStringLiteral("CartCreate")), 2);

    // Gone while it is shown: what is done to it fails, and the next look finds nothing.
    store.expireCarts();
    clickQuickly(QStringLiteral("more"), window.await(QStringLiteral("cartLines")), 1);
    window.await(QStringLiteral("cartError"));
    window.click(QStringLiteral("expandCart"));
    window.awaitPage(QStringLiteral("Cart"));
    window.press(QStringLiteral("F5"));
    window.awaitText(QStringLiteral("Your cart is empty"));
}

TEST_F(ShoppingJourney, TwoWindowsShowTheSameBag)
{
    openDress();
    const WindowDriver other = shop->openWindow(site + QStringLiteral("/collections/bags"));
    other.awaitPage(QStringLiteral("Bags"));
    add(QStringLiteral("M"));
    awaitCounts(QStringLiteral("1"));
    other.awaitText(QStringLiteral("1"), other.await(QStringLiteral("bag")));
    other.click(QStringLiteral("bag"));
    other.click(other.await(QStringLiteral("more"), other.await(QStringLiteral("cartLines"))));
    window.awaitText(QStringLiteral("2"), row(dress));
    clickQuickly(QStringLiteral("more"), row(dress), 1);
    window.awaitText(QStringLiteral("3 items in your cart"));
    other.awaitText(QStringLiteral("3 items in your cart"));
    other.click(other.await(QStringLiteral("remove"), other.await(QStringLiteral("cartLines"))));
    window.awaitText(QStringLiteral("Your cart is empty"));
    EXPECT_EQ(store.carts().size(), 1);
}

TEST_F(ShoppingJourney, TheBagIsFilledAndChangedWithoutAPointer)
{
    openDress();
    window.tabTo(QStringLiteral("size.M"));
    window.press(QStringLiteral("Space"));
    window.tabTo(QStringLiteral("addToCart"));
    window.press(QStringLiteral("Return"));
    window.await(QStringLiteral("lineTitle"), bag());
    window.tabTo(QStringLiteral("more"));
    window.press(QStringLiteral("Space"));
    window.awaitText(QStringLiteral("2 items in your cart"));
    window.press(QStringLiteral("Up"));
    window.awaitText(QStringLiteral("3 items in your cart"));
    window.tabTo(QStringLiteral("remove"));
    window.press(QStringLiteral("Return"));
    window.awaitText(QStringLiteral("Your cart is empty"));
    window.tabTo(QStringLiteral("act"));
    window.press(QStringLiteral("Return"));
    window.awaitText(QStringLiteral("3 items in your cart"));
    window.tabTo(QStringLiteral("input"));
    window.type(QStringLiteral("atelier15"));
    window.press(QStringLiteral("Return"));
    window.await(QStringLiteral("appliedCode"));
    window.tabTo(QStringLiteral("appliedCode"));
    window.press(QStringLiteral("Space"));
    window.awaitGone(QStringLiteral("appliedCode"));
    window.press(QStringLiteral("Esc"));
    window.awaitGone(QStringLiteral("cartPanel"));
    window.awaitFocus(QStringLiteral("addToCart"));
}

} // namespace

} // namespace loom
