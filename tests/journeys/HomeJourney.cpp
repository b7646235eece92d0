#include "kit/Journey.h"

namespace loom
{

namespace
{

const QString forYou = QStringLiteral("rail.for-you");
const QString newArrivals = QStringLiteral("rail.new-arrivals");

class HomeJourney : public Journey
{
protected:
    [[nodiscard]] QQuickItem* firstCard(const QQuickItem* below) const
    {
        const auto find = [&] {
            return window.findInOrder(QStringLiteral("card."), below).value(0);
        };
        waitUntil([&] { return find() != nullptr; }, "there is a card");
        return find();
    }
    [[nodiscard]] QStringList names(const QString& prefix) const
    {
        QStringList names;
        for (const QQuickItem* const item : window.findInOrder(prefix))
            names.append(item->objectName());
        return names;
    }
};

TEST_F(HomeJourney, AUselessRecommendationGoesAndComesBackAndItsRailOpensAsAPage)
{
    start();
    window.awaitPage(QStringLiteral("Explore"));
    const QQuickItem* const rail = window.await(forYou);
    QQuickItem* const card = firstCard(rail);
    const QString name = card->objectName();
    const QStringList texts = window.texts(card);
    EXPECT_TRUE(accessibleName(card).endsWith(texts.last())) << "the reason is said, too";

    window.tabTo(name);
    window.press(QStringLiteral("Delete"));
    waitUntil([&] { return window.find(name, rail) == nullptr; }, "the piece is gone");
    EXPECT_TRUE(window.focusName().startsWith(QStringLiteral("card."))) << window.focusName().toStdString();
    EXPECT_TRUE(window.shows(texts.at(1), window.await(QStringLiteral("notInterestedToast"))));
    window.press(QStringLiteral("Ctrl+Z"));
    window.await(name, rail);
    window.awaitGone(QStringLiteral("notInterestedToast"));
    EXPECT_EQ(firstCard(rail)->objectName(), name);

    window.click(window.await(QStringLiteral("action"), rail));
    window.awaitPage(QStringLiteral("For you"));
    EXPECT_EQ(firstCard(window.await(QStringLiteral("grid")))->objectName(), name);
    // What was looked at from the page above is in its place again.
    window.press(QStringLiteral("Alt+Left"));
    window.awaitPage(QStringLiteral("Explore"));
    EXPECT_NE(window.find(QStringLiteral("promotion")), nullptr);
}

TEST_F(HomeJourney, TheStoreOrdersTheDashboardAndARailThatFailsIsNotThere)
{
    store.setConfig({{QStringLiteral("home"),
                      QJsonObject{{QStringLiteral("dashboard"), QJsonArray{"closet", "unheard-of", "orders"}},
                                  {QStringLiteral("promo"), QJsonValue::Null}}}});
    store.setReco({{QStringLiteral("/reco?kind=for-you"), QJsonObject{{QStringLiteral("status"), 503}}}});
    start();
    window.awaitPage(QStringLiteral("Explore"));
    EXPECT_NE(firstCard(window.await(newArrivals)), nullptr);
    waitUntil([&] { return window.find(forYou) == nullptr; }, "no rail stands for what failed");
    const QStringList cards{QStringLiteral("dashboard.closet"), QStringLiteral("dashboard.orders")};
    waitUntil([&] { return names(QStringLiteral("dashboard.")) == cards; }, "the dashboard is the store's");
    EXPECT_EQ(window.find(QStringLiteral("promotion")), nullptr);
    // The rest of the shop is there nevertheless.
    window.click(QStringLiteral("tile.dresses"));
    window.awaitPage(QStringLiteral("Dresses"));
}

} // namespace

} // namespace loom
