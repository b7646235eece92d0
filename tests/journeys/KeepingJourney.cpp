#include "kit/Journey.h"

#include <QTemporaryDir>

namespace loom
{

namespace
{

const QString sabine = QStringLiteral("sabine-bias-slip-dress");
const QString odile = QStringLiteral("odile-tiered-dress");
const QString marlow = QStringLiteral("marlow-wrap-dress");

class KeepingJourney : public Journey
{
protected:
    void openDresses(const Circumstances& circumstances = {})
    {
        start(QStringLiteral("/collections/dresses"), circumstances);
        window.awaitPage(QStringLiteral("Dresses"));
    }
    [[nodiscard]] QQuickItem* card(const QString& handle) const
    {
        return window.await(QStringLiteral("card.") + handle);
    }
    [[nodiscard]] QQuickItem* heart(const QString& handle) const
    {
        return window.await(QStringLiteral("save"), card(handle));
    }
    void save(const QStringList& handles) const
    {
        for (const QString& handle : handles) {
            window.click(heart(handle));
            EXPECT_EQ(accessibleName(heart(handle)), QStringLiteral("Remove from wishlist"));
        }
    }
    void openWishlist() const
    {
        window.click(QStringLiteral("section.wishlist"));
        window.awaitPage(QStringLiteral("Wishlist"));
    }
    /// The handles of what is listed, in its order.
    [[nodiscard]] QStringList listed(const QString& prefix) const
    {
        QStringList handles;
        for (const QQuickItem* const item : window.findInOrder(prefix))
            handles.append(item->objectName().mid(prefix.size()));
        return handles;
    }
    void awaitListed(const QStringList& handles, const QString& prefix = QStringLiteral("card.")) const
    {
        const std::string what = handles.join(QStringLiteral(", ")).toStdString() + " are listed";
        waitUntil([&] { return listed(prefix) == handles; }, what);
    }
    void undo(const QString& title) const
    {
        const QQuickItem* const toast = window.await(QStringLiteral("undoToast"));
        window.awaitText(title, toast);
        window.click(window.await(QStringLiteral("action"), toast));
        window.awaitGone(QStringLiteral("undoToast"));
    }
    /// Waits until the store knows of these as kept, the latest first.
    void awaitTold(const QStringList& handles)
    {
        waitUntil(
            [&] {
                QStringList told;
                for (const auto item : store.wishlists().last()[u"items"].toArray())
                    told.append(item[u"handle"].toString());
                return told == handles;
            },
            "the store knows of the wishlist");
    }
    /// What is compared, from left to right.
    [[nodiscard]] QStringList compared() const
    {
        QStringList titles;
        for (QQuickItem* const piece : window.findInOrder(QStringLiteral("piece")))
            titles.append(accessibleName(piece));
        return titles;
    }
    void look(const QString& handle, const QString& title) const
    {
        follow(QStringLiteral("/products/") + handle);
        window.awaitPage(title);
    }

    QTemporaryDir folder;
};

TEST_F(KeepingJourney, WhatIsSavedGathersOnThePageAndWhatIsTakenOutComesBack)
{
    openDresses();
    save({sabine, odile, marlow});
    window.awaitText(QStringLiteral("3"), window.await(QStringLiteral("section.wishlist")));
    awaitTold({marlow, odile, sabine});
    EXPECT_EQ(store.wishlists().last()[u"items"].toArray().at(2).toObject(),
              (QJsonObject{{QStringLiteral("handle"), sabine},
                           {QStringLiteral("title"), QStringLiteral("Sabine bias slip dress")},
                           {QStringLiteral("price"), 248},
                           {QStringLiteral("currency"), QStringLiteral("USD")}}));

    // One by its heart, from the middle, and back to where it was.
    openWishlist();
    awaitListed({marlow, odile, sabine});
    window.click(heart(odile));
    awaitListed({marlow, sabine});
    undo(QStringLiteral("Odile tiered dress"));
    awaitListed({marlow, odile, sabine});

    // Several at once, and all.
    window.click(QStringLiteral("pick"));
    for (const QString& handle : {marlow, odile, sabine})
        window.click(card(handle));
    window.awaitText(QStringLiteral("3 chosen"));
    window.click(QStringLiteral("removePicked"));
    window.awaitText(QStringLiteral("Nothing saved yet"));
    awaitTold({});
    undo(QStringLiteral("3 pieces"));
    awaitListed({marlow, odile, sabine});
    window.click(QStringLiteral("sort"));
    window.click(QStringLiteral("sort.2"));
    awaitListed({odile, sabine, marlow});
    awaitTold({marlow, odile, sabine});
}

TEST_F(KeepingJourney, WhatWasLookedAtIsFoundAgainAndWatchedForItsPrice)
{
    start(QStringLiteral("/products/") + sabine);
    window.awaitPage(QStringLiteral("Sabine bias slip dress"));
    look(odile, QStringLiteral("Odile tiered dress"));
    look(marlow, QStringLiteral("Marlow wrap dress"));
    store.setPrice(sabine, 199);
    store.setPrice(odile, 400);

    const QString prefix = QStringLiteral("footprint.");
    window.press(QStringLiteral("Ctrl+H"));
    QQuickItem* const panel = window.await(QStringLiteral("footprintsPanel"));
    awaitListed({marlow, odile, sabine}, prefix);
    window.awaitText(QStringLiteral("$49.00 less now"), panel);
    window.tabTo(prefix + marlow);
    window.press(QStringLiteral("Delete"));
    awaitListed({odile, sabine}, prefix);
    undo(QStringLiteral("Marlow wrap dress"));
    awaitListed({marlow, odile, sabine}, prefix);

    // Only what costs less is told of.
    window.click(window.await(QStringLiteral("priceDrops"), panel));
    window.awaitPage(QStringLiteral("Price drops"));
    window.awaitText(QStringLiteral("1 piece costs less than when you saw it"));
    awaitListed({sabine});
    window.awaitText(QStringLiteral("$199.00"), card(sabine));
    window.awaitText(QStringLiteral("$248.00"), card(sabine));

    // The whole list, of which one is taken out and then all.
    window.press(QStringLiteral("Ctrl+H"));
    window.click(window.await(QStringLiteral("allFootprints"), panel));
    window.awaitPage(QStringLiteral("Recently viewed"));
    window.hover(card(odile));
    window.click(window.await(QStringLiteral("remove"), card(odile)));
    awaitListed({marlow, sabine});
    window.click(QStringLiteral("clear"));
    window.awaitText(QStringLiteral("No footprints yet"));
    window.press(QStringLiteral("Ctrl+Z"));
    awaitListed({marlow, odile, sabine});
}

TEST_F(KeepingJourney, WhatIsKeptAndComparedIsThereAfterARestart)
{
    const Circumstances same{.folder = folder.path()};
    openDresses(same);
    save({sabine, odile, marlow});
    look(QStringLiteral("vesna-slip-dress"), QStringLiteral("Vesna slip dress"));
    openWishlist();
    window.click(QStringLiteral("pick"));
    EXPECT_FALSE(window.await(QStringLiteral("compare"))->isEnabled());
    for (const QString& handle : {marlow, odile, sabine})
        window.click(card(handle));
    window.click(QStringLiteral("compare"));
    window.awaitPage(QStringLiteral("Compare"));
    const QStringList chosen{QStringLiteral("Marlow wrap dress"), QStringLiteral("Odile tiered dress"),
                             QStringLiteral("Sabine bias slip dress")};
    waitUntil([&] { return compared() == chosen; }, "the chosen are compared");
    window.awaitText(QStringLiteral("$312.00"));
    window.awaitText(QStringLiteral("Composition"));

    // Another takes the place of one.
    window.click(window.await(QStringLiteral("remove"), window.findInOrder(QStringLiteral("piece")).at(1)));
    window.click(QStringLiteral("candidate.vesna-slip-dress"));
    const QStringList titles{QStringLiteral("Marlow wrap dress"), QStringLiteral("Sabine bias slip dress"),
                             QStringLiteral("Vesna slip dress")};
    waitUntil([&] { return compared() == titles; }, "these are compared");

    awaitTold({marlow, odile, sabine});
    shop->model().saveWindowsForNextStart();
    shop.reset();
    store.reset();
    store.setPrice(sabine, 199);
    shop = std::make_unique<Shop>(store, same);
    window = shop->restoreWindows();
    window.awaitPage(QStringLiteral("Compare"));
    waitUntil([&] { return compared() == titles; }, "the same are compared");
    window.awaitText(QStringLiteral("$199.00"));
    window.press(QStringLiteral("Alt+Left"));
    window.awaitPage(QStringLiteral("Wishlist"));
    awaitListed({marlow, odile, sabine});
    window.awaitText(QStringLiteral("$49.00 less now"), card(sabine));
    window.click(QStringLiteral("priceDrops"));
    window.awaitPage(QStringLiteral("Price drops"));
    awaitListed({sabine});
    window.press(QStringLiteral("Ctrl+H"));
    awaitListed({QStringLiteral("vesna-slip-dress")}, QStringLiteral("footprint."));
}

} // namespace

} // namespace loom
