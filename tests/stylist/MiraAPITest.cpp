#include "stylist/MiraAPI.h"
#include "net/WidgetClient.h"
#include "stylist/MiraSizeAPI.h"

#include "support/Json.h"
#include "support/NetworkFixture.h"
#include "support/Printing.h"
#include "support/Running.h"

#include <QJsonArray>

namespace loom
{

namespace
{

class MiraAPITest : public NetworkFixture
{
protected:
    void expect(const char* path, Answer answer)
    {
        server.expect(QByteArray("POST /api/support/widget") + path, std::move(answer));
    }
    [[nodiscard]] QJsonValue sent() const { return server.requests().back().json(); }
    void signInAll()
    {
        signIn();
        identity = {.visitorId = "v-1", .customer = "42", .email = "jane@mail.example", .name = "Jane"};
    }

    CallerIdentity identity{.visitorId = QStringLiteral("v-1"), .customer = {}, .email = {}, .name = {}};
    WidgetClient widget{server.base(), QStringLiteral("key-1"), transport, session, random};
    MiraAPI mira{widget, [this] {
                     return identity;
                 }};
    MiraSizeAPI sizes{widget, [this] {
                          return identity;
                      }};
};

} // namespace

TEST_F(MiraAPITest, EveryCallSendsItsKeysAndNoOther)
{
    const MiraMessageRequest request{.visitorToken = "t-1",
                                     .body = "Hi\n/products/a",
                                     .language = "zh-Hant",
                                     .guideName = "Mira",
                                     .attachments = {{.handle = "a",
                                                      .title = "A",
                                                      .vendor = "V",
                                                      .price = "120.5",
                                                      .imageURL = "https://c.example/a",
                                                      .reason = "R"}}};
    expect("/init", Answer::body(R"({"visitorToken": "t-1", "hasConversation": false})"));
    const auto opened = run(mira.init({}, {}, {}));
    ASSERT_TRUE(opened);
    EXPECT_EQ(opened->visitorToken, "t-1");
    EXPECT_EQ(sent(), json(R"({"visitorToken": "", "visitorId": "v-1", "guide": "", "publicKey": "key-1"})"));
    expect("/message", Answer::body(R"({"messages": [{"id": 1, "body": "Hello"}]})"));
    const auto replies = run(mira.message(request, {}));
    ASSERT_TRUE(replies);
    EXPECT_EQ(replies->messages.front().body, "Hello");
    const QJsonValue anonymous = json(R"({"visitorToken": "t-1", "body": "Hi\n/products/a", "lang": "zh-Hant",
        "attachments": [{"handle": "a", "title": "A", "vendor": "V", "price": "120.5", "image": "https://c.example/a"}],
        "guide": "Mira", "visitorId": "v-1", "publicKey": "key-1"})");
    EXPECT_EQ(sent(), anonymous);
    expect("/guide-get", Answer::body(R"({"guide": {"name": "Mira"}})"));
    EXPECT_EQ(run(mira.guide({}))->guideName, "Mira");
    EXPECT_EQ(sent(), json(R"({"visitorId": "v-1", "publicKey": "key-1"})"));
    expect("/size-reco", Answer::body(R"({"recommendedSize": " M "})"));
    EXPECT_EQ(*run(sizes.recommendedSize("silk", "en", {})), "M");
    EXPECT_EQ(sent(), json(R"({"handle": "silk", "locale": "en", "publicKey": "key-1"})"));

    signInAll();
    expect("/message", Answer::body(R"({"messages": []})"));
    static_cast<void>(run(mira.message(request, {})));
    QJsonObject known = anonymous.toObject();
    for (const auto& [key, value] :
         {std::pair{"name", "Jane"}, {"email", "jane@mail.example"}, {"customer", "42"}, {"appToken", "app-1"}})
        known.insert(QLatin1String(key), QLatin1String(value));
    EXPECT_EQ(sent(), QJsonValue(known));
    expect("/guide-get", Answer::body("{}"));
    static_cast<void>(run(mira.guide({})));
    EXPECT_EQ(sent(),
              json(R"({"visitorId": "v-1", "email": "jane@mail.example", "publicKey": "key-1", "appToken": "app-1"})"));
    expect("/orders", Answer::body(R"({"orders": [{"id": "o", "name": "LST1"}]})"));
    EXPECT_EQ(run(mira.orders({}))->orders.front().name, "LST1");
    EXPECT_EQ(sent(), json(R"({"publicKey": "key-1", "appToken": "app-1"})"));
    expect("/size-reco", Answer::body(R"({"recommendedSize": null})"));
    EXPECT_EQ(*run(sizes.recommendedSize("silk", "fr", {})), std::nullopt);
    EXPECT_EQ(
        sent(),
        json(
            R"({"handle": "silk", "locale": "fr", "email": "jane@mail.example", "publicKey": "key-1", "appToken": "app-1"})"));
}

TEST_F(MiraAPITest, FailuresAndLateAnswersAreTold)
{
    using namespace std::chrono_literals;
    expect("/init", Answer::body(R"({"code": "EXPIRED"})", 410));
    const auto expired = run(mira.init("old", "Mira", {}));
    ASSERT_FALSE(expired);
    EXPECT_EQ(expired.error().error().as<APIError::Http>()->code, "EXPIRED");
    expect("/message", Answer::body(R"({"messages": 5})"));
    EXPECT_TRUE(run(mira.message({}, {})).error().error().as<APIError::Decoding>());
    expect("/size-reco", Answer::body("[]"));
    EXPECT_TRUE(run(sizes.recommendedSize("a", "en", {})).error().error().as<APIError::Decoding>());

    std::size_t requests = server.requests().size();
    const auto expectTimeout = [&](auto task, std::chrono::milliseconds after) {
        Running running(std::move(task));
        server.waitForRequests(++requests);
        EXPECT_EQ(clock.nextWake(), after);
        clock.advance(after);
        EXPECT_TRUE(running.result().error().error().template as<APIError::Timeout>());
    };
    expect("/message", Answer::silence());
    expectTimeout(mira.message({}, {}), 20s);
    expect("/size-reco", Answer::silence());
    expectTimeout(sizes.recommendedSize("a", "en", {}), 10s);

    std::stop_source stop;
    expect("/init", Answer::silence());
    Running cancelled(mira.init({}, {}, stop.get_token()));
    server.waitForRequests(++requests);
    stop.request_stop();
    EXPECT_TRUE(cancelled.result().error().isCancelled());
}

} // namespace loom
