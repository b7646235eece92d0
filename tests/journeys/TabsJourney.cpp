#include "kit/Journey.h"

#include <QTemporaryDir>

namespace loom
{

namespace
{

class TabsJourney : public Journey
{
protected:
    [[nodiscard]] QQuickItem* card(int number) const
    {
        waitUntil([&] { return window.findAll(QStringLiteral("card.")).size() > number; }, "there are cards");
        return window.findAll(QStringLiteral("card.")).at(number);
    }
    [[nodiscard]] QString titleOf(const QQuickItem* card) const { return window.texts(card).at(1); }
    [[nodiscard]] QQuickItem* preview() const { return window.await(QStringLiteral("preview")); }
    [[nodiscard]] double scrollY() const
    {
        return window.await(QStringLiteral("grid"))->property("scrollY").toDouble();
    }
    /// The titles of the tabs in their order.
    [[nodiscard]] QStringList tabs() const
    {
        QStringList titles;
        TabsModel& model = *shop->model().windows().front()->tabs();
        for (int i = 0; i < model.count(); ++i) {
            const QQuickItem* const tab = window.await(QStringLiteral("tab%1").arg(i));
            EXPECT_EQ(tab->property("text").toString(), model.at(i)->title());
            titles.append(model.at(i)->title());
        }
        return titles;
    }

    QTemporaryDir folder;
};

TEST_F(TabsJourney, APieceIsLookedAtBesideTheGrid)
{
    start(QStringLiteral("/collections/dresses"));
    window.awaitPage(QStringLiteral("Dresses"));
    const QString first = titleOf(card(0));
    const QString second = titleOf(card(1));

    // One piece after the other, the grid staying where it is.
    window.click(card(0));
    window.awaitText(first, preview());
    EXPECT_TRUE(card(0)->property("previewed").toBool());
    window.click(card(1));
    window.awaitText(second, preview());
    EXPECT_FALSE(card(0)->property("previewed").toBool());
    EXPECT_EQ(window.window()->title(), QStringLiteral("Dresses – LOOMSTREET"));

    // It is bought from there.
    waitUntil([&] { return window.await(QStringLiteral("addToCart"), preview())->isEnabled(); }, "it can be bought");
    window.click(window.await(QStringLiteral("addToCart"), preview()));
    window.awaitText(QStringLiteral("Choose a size first."), preview());
    window.click(window.await(QStringLiteral("size.M"), preview()));
    window.click(window.await(QStringLiteral("addToCart"), preview()));
    window.awaitText(second, window.await(QStringLiteral("cartPanel")));
    window.press(QStringLiteral("Esc"));
    window.awaitGone(QStringLiteral("cartPanel"));

    // As wide as the shopper likes, within bounds.
    window.tabTo(QStringLiteral("previewEdge"));
    for (int i = 0; i < 20; ++i)
        window.press(QStringLiteral("Left"));
    waitUntil([&] { return preview()->width() == 640; }, "the pane is as wide as it may be");

    // As a page of its own, which takes its place; and back.
    window.press(QStringLiteral("Ctrl+Shift+Return"));
    window.awaitPage(second);
    EXPECT_EQ(window.find(QStringLiteral("preview")), nullptr);
    window.press(QStringLiteral("Alt+Left"));
    window.awaitPage(QStringLiteral("Dresses"));

    // Into a tab of its own, and away.
    window.click(card(0));
    window.awaitText(first, preview());
    window.press(QStringLiteral("Ctrl+Shift+O"));
    window.awaitPage(first);
    window.press(QStringLiteral("Ctrl+W"));
    window.awaitText(first, preview());
    window.press(QStringLiteral("Ctrl+Shift+W"));
    window.awaitGone(QStringLiteral("preview"));

    // A window without the room opens the page.
    window.click(card(0));
    window.awaitText(first, preview());
    window.window()->resize(1300, 800);
    window.awaitGone(QStringLiteral("preview"));
    window.click(card(1));
    window.awaitPage(second);
}

TEST_F(TabsJourney, TheShopIsAsItWasAfterItWasKilled)
{
    const Circumstances same{.folder = folder.path()};
    start(QStringLiteral("/collections/dresses"), same);
    window.awaitPage(QStringLiteral("Dresses"));
    QQuickItem* const grid = window.await(QStringLiteral("grid"));
    window.scroll(grid, 900);
    const double place = scrollY();
    const QString piece = titleOf(card(0));
    window.press(QStringLiteral("Ctrl+T"));
    window.click(QStringLiteral("section.bags"));
    window.awaitPage(QStringLiteral("Bags"));
    window.press(QStringLiteral("Ctrl+Alt+P"));
    window.press(QStringLiteral("Ctrl+T"));
    window.click(QStringLiteral("section.men"));
    window.awaitPage(QStringLiteral("Men"));
    window.press(QStringLiteral("Ctrl+Shift+PgUp"));
    EXPECT_EQ(tabs(), QStringList({QStringLiteral("Bags"), QStringLiteral("Men"), QStringLiteral("Dresses")}));

    // Nothing tells it that it ends.
    waitUntil([&] { return QFile::exists(folder.filePath(QStringLiteral("data/lst_windows.json"))); }, "it is written");
    shop->model().saveWindowsForNextStart();
    shop.reset();
    store.reset();
    shop = std::make_unique<Shop>(store, same);
    window = shop->restoreWindows();
    window.awaitPage(QStringLiteral("Men"));
    EXPECT_EQ(tabs(), QStringList({QStringLiteral("Bags"), QStringLiteral("Men"), QStringLiteral("Dresses")}));
    EXPECT_TRUE(shop->model().keySession()->tabs()->at(0)->isPinned());
    EXPECT_EQ(store.count(QStringLiteral("CollectionProducts")), 0); // no other tab has asked for anything

    window.click(QStringLiteral("tab2"));
    window.awaitPage(QStringLiteral("Dresses"));
    waitUntil([&] { return scrollY() == place; }, "it is where it was");
    window.press(QStringLiteral("Ctrl+W"));
    window.awaitPage(QStringLiteral("Men"));
    window.press(QStringLiteral("Ctrl+Shift+T"));
    window.awaitPage(QStringLiteral("Dresses"));

    // A tab that is carried out of its row gets a window of its own.
    window.press(QStringLiteral("Ctrl+Shift+N"));
    waitUntil([&] { return shop->model().windows().size() == 2; }, "there is another window");
    EXPECT_EQ(tabs(), QStringList({QStringLiteral("Bags"), QStringLiteral("Men")}));
    EXPECT_EQ(shop->model().windows().at(1)->tabs()->at(0)->title(), QStringLiteral("Dresses"));
}

} // namespace

} // namespace loom
