#include "net/Tracker.h"

#include "net/WidgetClient.h"

#include "support/NetworkFixture.h"

using namespace loom;

namespace
{

class TrackerTest : public NetworkFixture
{
protected:
    TrackerTest() { signIn(); }

    WidgetClient client{server.base(), QStringLiteral("key-1"), transport, session, random};
    bool hasConsent = true;
    int visitors = 0;
    std::optional<Tracker> tracker{std::in_place, client, clock, [this] { return hasConsent; },
                                   [this] {
                                       return QStringLiteral("visitor-%1").arg(++visitors);
                                   }};
};

TEST_F(TrackerTest, AReportNamesTheEventAndTheVisitorButNotTheCustomer)
{
    server.expect("POST /api/support/widget/track", Answer::body("", 500));
    tracker->report(Tracker::ProductViewed{QStringLiteral("silk-dress")});
    server.waitForRequests(1);
    EXPECT_EQ(server.onlyRequest().body,
              R"({"at":"2025-03-09T08:07:06.000Z","event":"product_viewed","handle":"silk-dress",)"
              R"("platform":"macos","publicKey":"key-1","visitorId":"visitor-1"})");
    waitUntil([this] { return clock.sleepers() == 0; }, "the reports have ended");
}

TEST_F(TrackerTest, WithoutConsentNothingIsReportedAndNoVisitorIsMade)
{
    hasConsent = false;
    tracker->report(Tracker::AppOpened{});
    EXPECT_EQ(clock.sleepers(), 0);
    EXPECT_EQ(visitors, 0);
    hasConsent = true;
    server.expect("POST /api/support/widget/track", Answer::silence());
    tracker->report(Tracker::AppOpened{});
    server.waitForRequests(1);
    tracker.reset();
    EXPECT_EQ(clock.sleepers(), 0);
}

} // namespace
