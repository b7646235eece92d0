#include "AppFixture.h"

using namespace loom;

namespace
{

class AppModelTest : public AppFixture
{
protected:
    AppModelTest() { start(); }

    /// Stores what the shopper agreed to, as an earlier start would have.
    void agreeToReports()
    {
        model->settings()->setSharesUsage(true);
        server.allow("POST /api/support/widget/track", [this](const ReceivedRequest& request) {
            const QJsonObject body = request.json();
            reports.append(body.value(QStringLiteral("event")).toString() + QLatin1Char(' ') +
                           body.value(QStringLiteral("handle")).toString());
            visitors.append(body.value(QStringLiteral("visitorId")).toString());
            return Answer::body("");
        });
    }

    QStringList reports;
    QStringList visitors;
    QObject page; // ends before the model, as pages do
};

const QString silk = QStringLiteral("silk");
const QString newIn = QStringLiteral("new-in");
const QString finalSale = QStringLiteral("final-sale");

TEST_F(AppModelTest, TheFirstPageIsAskedForBeforeItsWindowIsBuiltAndTakesOverWhatRuns)
{
    const CollectionModel* collection = nullptr;
    host.whileShowing = [&](const WindowSession&) {
        EXPECT_FALSE(model->didBootstrap()); // what is not seen comes after what is
        collection = model->makeCollection(&page, newIn, {});
        EXPECT_TRUE(collection->isLoading());
        // It is there once, and for its own page.
        EXPECT_FALSE(model->makeCollection(&page, newIn, {})->isLoading());
    };
    const WindowSession& session = model->openWindow({.link = QStringLiteral("/collections/new-in")});
    EXPECT_EQ(host.takeCalls(), QStringList(QStringLiteral("show 1")));
    EXPECT_TRUE(model->didBootstrap());
    EXPECT_EQ(model->keySession(), &session);
    ASSERT_TRUE(collection);
    EXPECT_EQ(collection->parent(), &page);
    EXPECT_EQ(queries(4),
              QStringList({QStringLiteral("CollectionProducts new-in AT DE"), QStringLiteral("Countries DE"),
                           QStringLiteral("RateSample AT"), QStringLiteral("RateSample US")}));
    EXPECT_EQ(collection->errorText(), errorDescription(APIError{APIError::Http{.status = 404}}));

    host.whileShowing = [&](const WindowSession&) {
        EXPECT_TRUE(model->makeHome(&page)->isLoading());
    };
    model->openWindow({});
}

TEST_F(AppModelTest, APageThatNeverCameIsForgottenWithTheNextWindow)
{
    model->openWindow({.link = QStringLiteral("/products/a")});
    model->openWindow({.link = QStringLiteral("/products/b")});
    EXPECT_FALSE(model->makeProduct(&page, QStringLiteral("a"), {})->isLoading());
    EXPECT_FALSE(model->makeCollection(&page, QStringLiteral("b"), {})->isLoading()); // of another kind
    EXPECT_TRUE(model->makeProduct(&page, QStringLiteral("b"), {})->isLoading());
}

TEST_F(AppModelTest, TheProcessIsSetGoingOnceHoweverManyWindowsOpen)
{
    agreeToReports();
    for (int i = 0; i < 3; ++i)
        model->openWindow({.section = SidebarItem::Starlook});
    model->bootstrap();
    EXPECT_EQ(queries(3).size(), 3);
    EXPECT_EQ(reports, QStringList(QStringLiteral("app_opened ")));

    EXPECT_TRUE(model->claim(QStringLiteral("greeting")));
    EXPECT_FALSE(model->claim(QStringLiteral("greeting")));
    EXPECT_TRUE(model->claim(QStringLiteral("other")));
}

TEST_F(AppModelTest, TheVisitorStaysTheSameAndIsMadeOnlyForReports)
{
    const Preference<const char*> stored{"lst_visitor_id", ""};
    model->openWindow({.section = SidebarItem::Starlook});
    static_cast<void>(model->makeProduct(&page, silk, {}));
    static_cast<void>(queries(3));
    EXPECT_EQ(model->preferences().value(stored), QString()); // nobody agreed to be counted

    const QUuid visitor(QStringLiteral("c0ffee00-0000-4000-8000-000000000001"));
    random.foretell(visitor);
    agreeToReports();
    static_cast<void>(model->makeProduct(&page, silk, {}));
    static_cast<void>(
        model->makeRecommendations(&page, QStringLiteral("collection"), finalSale, {})); // passed by, not looked at
    static_cast<void>(model->makeCollection(&page, newIn, {}));
    waitUntil([this] { return reports.size() == 2 && clock.sleepers() == asleepWithWindows; },
              "both reports have come");
    reports.sort();
    EXPECT_EQ(reports,
              QStringList({QStringLiteral("collection_viewed new-in"), QStringLiteral("product_viewed silk")}));
    const QString expected = visitor.toString(QUuid::WithoutBraces);
    EXPECT_EQ(visitors, QStringList({expected, expected}));

    qDeleteAll(page.children());
    start();
    EXPECT_EQ(model->visitorID(), expected);
    EXPECT_TRUE(model->settings()->sharesUsage());
}

TEST_F(AppModelTest, TheWindowInFrontIsTheOneThatWasThereLast)
{
    EXPECT_EQ(model->keySession(), nullptr);
    std::array<WindowSession*, 3> windows{};
    for (WindowSession*& window : windows)
        window = &model->openWindow({.section = SidebarItem::Starlook});
    EXPECT_EQ(model->keySession(), windows[2]);
    model->windowBecameKey(windows[0]);
    EXPECT_EQ(model->keySession(), windows[0]);
    model->closeWindow(windows[2]);
    EXPECT_EQ(model->keySession(), windows[0]);
    model->closeWindow(windows[0]);
    EXPECT_EQ(model->keySession(), windows[1]);

    // A window that is gone may still have something to say.
    model->windowBecameKey(windows[0]);
    model->closeWindow(windows[0]);
    EXPECT_EQ(model->keySession(), windows[1]);
    model->closeWindow(windows[1]);
    EXPECT_EQ(model->keySession(), nullptr);
    EXPECT_TRUE(model->windows().empty());
}

TEST_F(AppModelTest, AWindowMayBeClosedFromWithin)
{
    WindowSession& session = model->openWindow({.section = SidebarItem::Starlook});
    const QPointer<WindowSession> watched = &session;
    QObject::connect(&session, &WindowSession::closeRequested, &*model, [&] { model->closeWindow(&session); });
    session.closeTab(0);
    ASSERT_TRUE(watched); // still in the middle of the call
    EXPECT_EQ(watched->tabs()->count(), 1);
    drainEvents();
    EXPECT_FALSE(watched);
}

TEST_F(AppModelTest, ACallIsFollowedByPagesAndByTheConversation)
{
    location.canLocate = false;
    int asked = 0;
    server.allow("POST /api/support/widget/init", [&asked](const ReceivedRequest&) {
        ++asked;
        return Answer::body(R"({"visitorToken": "t-1", "hasConversation": false, "messages": []})");
    });
    server.allow("POST /api/support/widget/guide-get", [](const ReceivedRequest&) { return Answer::body("", 404); });
    model->openWindow({.section = SidebarItem::Starlook});
    model->mira()->open();
    const auto isAnswered = [&](int times) {
        return asked == times && !model->mira()->isLoading();
    };
    waitUntil([&] { return isAnswered(1); }, "the conversation is there");

    Q_EMIT model->call()->opening({.place = SidebarItem::Wishlist, .name = {}});
    EXPECT_EQ(model->keySession()->selected()->selection(), SidebarItem::Wishlist);
    EXPECT_EQ(host.takeCalls().last(), QStringLiteral("raise 1"));

    // What was said is in it, however short the call was.
    clock.advance(std::chrono::seconds(30));
    Q_EMIT model->call()->callEnded();
    clock.advance(CallDesk::writingTime);
    waitUntil([&] { return isAnswered(2); }, "the conversation is asked for again");
    EXPECT_EQ(model->mira()->notice(), QString());
}

TEST_F(AppModelTest, AnOrderIsReportedOnceItIsPlacedToThoseWhoMayBeTold)
{
    model->announcements().post(Announcement::CheckoutCompleted); // nobody has agreed to anything yet
    agreeToReports();
    model->announcements().post(Announcement::CheckoutClosed);
    model->announcements().post(Announcement::CheckoutCompleted);
    waitUntil([this] { return reports.size() == 1; }, "the report has come");
    drainEvents();
    EXPECT_EQ(reports, QStringList(QStringLiteral("order_placed ")));
}

} // namespace
