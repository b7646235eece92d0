#include "discovery/HomeModel.h"

#include "base/Announcements.h"

#include "DiscoveryFixture.h"

#include <QAbstractItemModelTester>

using namespace loom;

namespace
{

const QString forYou = QStringLiteral("for-you");
const QString newArrivals = QStringLiteral("new-arrivals");

class HomeModelTest : public DiscoveryFixture
{
protected:
    HomeModelTest()
    {
        server.allow("GET /api/support/widget/vessa/reco-rails",
                     [this](const ReceivedRequest&) { return collections; });
    }

    void open() { home = std::make_unique<HomeModel>(services, announcements, folder); }
    void load()
    {
        home->reload();
        waitUntil([this] { return !home->isLoading(); }, "the home has settled");
        folder.waitUntilWritten();
    }
    void list(const QString& handles)
    {
        QJsonArray rails;
        for (const QString& handle : handles.split(u' ', Qt::SkipEmptyParts))
            rails.append(QJsonObject{{QStringLiteral("handle"), handle}, {QStringLiteral("title"), handle.toUpper()}});
        collections = Answer::json({{QStringLiteral("rails"), rails}});
    }
    /// Such as "for-you: a b | coats: c".
    [[nodiscard]] std::string page() const
    {
        QStringList rails;
        for (const RecoRail* const rail : home->rails())
            rails.append((rail->handle().isEmpty() ? rail->kind() : rail->handle()) + QStringLiteral(": ") +
                         rail->handles().join(u' '));
        return rails.join(QStringLiteral(" | ")).toStdString();
    }

    Announcements announcements;
    Answer collections = Answer::body("{}", 500);
    std::unique_ptr<HomeModel> home;
};

TEST_F(HomeModelTest, NoPieceStandsOnThePageTwiceNorOneThatIsInTheCartOrHidden)
{
    recommend(forYou, QStringLiteral("a silk b"));
    recommend(newArrivals, QStringLiteral("b c d"));
    list(QStringLiteral("coats bags empty broken"));
    recommend(QStringLiteral("coats"), QStringLiteral("c e"));
    recommend(QStringLiteral("bags"), QStringLiteral("a b c"));
    recommend(QStringLiteral("empty"), {});
    open();
    const QAbstractItemModelTester tester(home.get(), QAbstractItemModelTester::FailureReportingMode::Fatal);
    load();
    EXPECT_EQ(page(), "for-you: a silk b | new-arrivals: c d | coats: e");
    EXPECT_EQ(home->data(home->index(2), HomeModel::HandleRole).toString(), QStringLiteral("coats"));
    EXPECT_EQ(home->rails().back()->title(), QStringLiteral("COATS"));
    hidden.hide(QStringLiteral("b"), {});
    EXPECT_EQ(page(), "for-you: a silk | new-arrivals: c d | coats: e");
    hidden.hide(QStringLiteral("c"), {});
    hidden.hide(QStringLiteral("a"), {});
    EXPECT_EQ(page(), "for-you: silk | new-arrivals: d | coats: e");
    show({{.line = "one", .variant = "v", .quantity = 1}}); // of the piece "silk"
    EXPECT_EQ(page(), "new-arrivals: d | coats: e");
    hidden.undo();
    EXPECT_EQ(page(), "for-you: a | new-arrivals: d | coats: e");
}

TEST_F(HomeModelTest, TheLastGoodRailsAreThereAtOnceAndKeepTheirPlaces)
{
    recommend(forYou, QStringLiteral("a b"));
    recommend(newArrivals, QStringLiteral("c"));
    list(QStringLiteral("coats bags hats"));
    for (const char* const handle : {"coats", "bags", "hats", "shoes", "knits"})
        recommend(QLatin1String(handle), QLatin1String(handle) + QLatin1String("-1"));
    open();
    load();
    const std::string before = "for-you: a b | new-arrivals: c | coats: coats-1 | bags: bags-1 | hats: hats-1";
    ASSERT_EQ(page(), before);

    // Nothing answers: everything stays, now and at the next start.
    feeds.clear();
    collections = Answer::body("{}", 500);
    load();
    EXPECT_EQ(page(), before);
    open();
    EXPECT_EQ(page(), before);
    EXPECT_EQ(home->phase(), HomeModel::Phase::Loaded);
    load();
    EXPECT_EQ(page(), before);
    EXPECT_EQ(home->errorText(), QString());

    // Something newer answers: in another order, with others in the place of one that is gone.
    recommend(forYou, QStringLiteral("b x"));
    recommend(newArrivals, {});
    list(QStringLiteral("shoes hats knits coats"));
    for (const char* const handle : {"coats", "hats", "shoes", "knits"})
        recommend(QLatin1String(handle), QLatin1String(handle) + QLatin1String("-2"));
    load();
    EXPECT_EQ(page(),
              "for-you: b x | new-arrivals: c | coats: coats-2 | shoes: shoes-2 | hats: hats-2 | knits: knits-2");

    market.setGender(ShopGender::Men);
    waitUntil([this] { return !home->isLoading(); }, "the department has changed");
    EXPECT_EQ(item(server.requests().back(), "gender"), QStringLiteral("men"));
    market.setGender(ShopGender::Women);
    waitUntil([this] { return !home->isLoading(); }, "and changed back");
}

TEST_F(HomeModelTest, WhatWasRecommendedToACustomerGoesWithThem)
{
    recommend(forYou, QStringLiteral("a"));
    list({});
    identity.customer = QStringLiteral("42");
    open();
    load();
    ASSERT_EQ(page(), "for-you: a");
    identity.customer.clear();
    feeds.clear();
    announcements.post(Announcement::AuthChanged);
    EXPECT_TRUE(std::ranges::none_of(home->rails(), [](const RecoRail* rail) { return rail->count() > 0; }));
    waitUntil([this] { return !home->isLoading(); }, "the home has settled");
    EXPECT_EQ(home->phase(), HomeModel::Phase::Failed);
    EXPECT_FALSE(home->errorText().isEmpty());
}

TEST_F(HomeModelTest, AnAnswerThatComesLateIsDropped)
{
    list({});
    recommend(newArrivals, QStringLiteral("n"));
    feeds.insert_or_assign(
        forYou, Answer::json({{QStringLiteral("forYou"), recommended(QStringLiteral("old"))}}).pauseAfter(0));
    open();
    home->load();
    home->load();
    server.waitForRequests(3);
    recommend(forYou, QStringLiteral("new"));
    home->reload();
    waitUntil([this] { return !home->isLoading(); }, "the later answer has come");
    server.proceed();
    drainEvents();
    EXPECT_EQ(page(), "for-you: new | new-arrivals: n");
    EXPECT_EQ(server.requests().size(), 6U);
}

} // namespace
