#include "net/WidgetClient.h"

#include "support/NetworkFixture.h"

using namespace loom;
using namespace std::chrono_literals;

namespace
{

using Bytes = ApiResult<QByteArray>;
using Options = WidgetClient::Options;

Bytes httpFailure(int status, const char* code)
{
    return apiFailure(APIError::Http{.status = status, .code = QString::fromUtf8(code), .message = {}});
}

class WidgetClientTest : public NetworkFixture
{
protected:
    WidgetClient client{server.base(), QStringLiteral("key-1"), transport, session, random};
};

TEST_F(WidgetClientTest, AJsonCallCarriesTheKeyAndTheTokenWhereTheyBelong)
{
    struct Row {
        const char* path;
        Options options;
        bool isSignedIn;
        const char* route;
        const char* body;
    };
    for (const Row& row : {
             Row{"/orders", {}, false, "POST /api/support/widget/orders", R"({"a":[1,null],"publicKey":"key-1"})"},
             Row{"orders", {}, false, "POST /api/support/widget/orders", R"({"a":[1,null],"publicKey":"key-1"})"},
             Row{"/orders",
                 {},
                 true,
                 "POST /api/support/widget/orders",
                 R"({"a":[1,null],"appToken":"app-1","publicKey":"key-1"})"},
             Row{"/app-auth/login",
                 {.identity = Identity::Anonymous},
                 true,
                 "POST /api/support/widget/app-auth/login",
                 R"({"a":[1,null],"publicKey":"key-1"})"},
             Row{"/init",
                 {.audience = Audience::Public},
                 true,
                 "POST /api/pub/init",
                 R"({"a":[1,null],"appToken":"app-1"})"},
             Row{"//init",
                 {.audience = Audience::Public, .identity = Identity::Anonymous},
                 true,
                 "POST /api/pub//init",
                 R"({"a":[1,null]})"},
         }) {
        session.signOut();
        if (row.isSignedIn)
            signIn();
        server.expect(row.route, Answer::body("raw \xFF bytes"));
        const QJsonObject body{{QStringLiteral("a"), QJsonArray{1, QJsonValue::Null}}};
        EXPECT_EQ(run(client.post(QString::fromUtf8(row.path), body, row.options, {})), Bytes("raw \xFF bytes"));
        EXPECT_EQ(server.requests().back().body, row.body) << row.path;
        EXPECT_EQ(server.requests().back().header("Content-Type"), "application/json");
        EXPECT_EQ(server.requests().back().query, "");
    }
}

TEST_F(WidgetClientTest, AReadCarriesItsQueryAsWrittenAndTheKeyLast)
{
    signIn();
    server.expect("GET /api/support/widget/app-version/config", Answer::body("{}"));
    EXPECT_TRUE(run(client.get(QStringLiteral("/app-version/config"),
                               {{QStringLiteral("platform"), QStringLiteral("macos")},
                                {QStringLiteral("q&="), QStringLiteral("1+1 =2&#?/%41 łódź")},
                                {QStringLiteral("empty"), {}}},
                               {}, {})));
    EXPECT_EQ(server.onlyRequest().query,
              "platform=macos&q%26%3D=1%2B1%20%3D2%26%23%3F%2F%2541%20%C5%82%C3%B3d%C5%BA&empty="
              "&publicKey=key-1");
    EXPECT_EQ(server.onlyRequest().body, "");

    server.expect("GET /api/pub/hours", Answer::body("{}"));
    EXPECT_TRUE(run(client.get(QStringLiteral("hours"), {}, {.audience = Audience::Public}, {})));
    EXPECT_EQ(server.requests().back().query, "");
}

TEST_F(WidgetClientTest, AFileIsSentAsMultipartByteForByte)
{
    random.foretell(QUuid(QStringLiteral("{6f9619ff-8b86-d011-b42d-00c04fc964ff}")));
    server.expect("POST /api/support/widget/try-on", Answer::body("{}"));
    const QByteArray picture("\x89PNG\r\n\0--lst-", 13);
    EXPECT_TRUE(
        run(client.upload(QStringLiteral("/try-on"),
                          {{QStringLiteral("note"), QStringLiteral("a\r\nłódź")}, {QStringLiteral("b\"\r\nX: y"), {}}},
                          {.fieldName = QStringLiteral("image"),
                           .fileName = QStringLiteral("me \"at\"\nhome.png"),
                           .mimeType = QStringLiteral("image/png"),
                           .bytes = picture},
                          {})));
    const QByteArray boundary = "lst-6F9619FF-8B86-D011-B42D-00C04FC964FF";
    EXPECT_EQ(server.onlyRequest().header("Content-Type"), "multipart/form-data; boundary=" + boundary);
    EXPECT_EQ(server.onlyRequest().body,
              "--" + boundary + "\r\nContent-Disposition: form-data; name=\"note\"\r\n\r\na\r\nłódź\r\n--" + boundary +
                  "\r\nContent-Disposition: form-data; name=\"b%22%0D%0AX: y\"\r\n\r\n\r\n--" + boundary +
                  "\r\nContent-Disposition: form-data; name=\"image\"; "
                  "filename=\"me %22at%22%0Ahome.png\"\r\nContent-Type: image/png\r\n\r\n" +
                  picture + "\r\n--" + boundary + "--\r\n");

    server.expect("POST /api/support/widget/try-on", Answer::body("{}", 413));
    EXPECT_FALSE(run(client.upload(QStringLiteral("try-on"), {}, {}, {})));
    EXPECT_TRUE(server.requests().back().header("Content-Type").endsWith("=lst-00000000-0000-4000-8000-000000000001"));
}

TEST_F(WidgetClientTest, EachKindOfCallHasItsOwnTimeout)
{
    for (const char* const route : {"POST /api/support/widget/a", "POST /api/support/widget/a",
                                    "GET /api/support/widget/a", "POST /api/support/widget/a"})
        server.expect(route, Answer::silence());
    const QString path = QStringLiteral("a");
    std::size_t sent = 0;
    const auto expectTimeout = [&](QCoro::Task<Bytes> task, std::chrono::milliseconds after) {
        Running<Bytes> call(std::move(task));
        server.waitForRequests(++sent);
        EXPECT_EQ(clock.nextWake(), after);
        clock.advance(after);
        EXPECT_EQ(call.result(), Bytes(apiFailure(APIError::Timeout{})));
    };
    expectTimeout(client.post(path, {}, {}, {}), 20s);
    expectTimeout(client.post(path, {}, {.timeout = 45s}, {}), 45s);
    expectTimeout(client.get(path, {}, {.timeout = 15s}, {}), 15s);
    expectTimeout(client.upload(path, {}, {}, {}), 60s);
}

TEST_F(WidgetClientTest, EveryKindOfCallReportsAFailureInTheSameWayAndNoneIsRepeated)
{
    const QString path = QStringLiteral("a");
    const auto each = [&](const Answer& answer) {
        server.expect("POST /api/support/widget/a", answer);
        server.expect("GET /api/support/widget/a", answer);
        server.expect("POST /api/support/widget/a", answer);
        return std::array{run(client.post(path, {}, {}, {})), run(client.get(path, {}, {}, {})),
                          run(client.upload(path, {}, {}, {}))};
    };
    for (const Bytes& result : each(Answer::json({{QStringLiteral("code"), QStringLiteral("NO_EMAIL")}}, 422)))
        EXPECT_EQ(result, httpFailure(422, "NO_EMAIL"));
    for (const Bytes& result : each(Answer::body("", 401)))
        EXPECT_EQ(result, httpFailure(401, "REAUTH"));
    for (const Bytes& result : each(Answer::body("short").cutAfter(2)))
        EXPECT_EQ(result, Bytes(apiFailure(APIError::Offline{})));
    for (const Bytes& result : each(Answer::body("", 299)))
        EXPECT_EQ(result, Bytes(""));
    EXPECT_EQ(server.requests().size(), 12U);

    std::stop_source stop;
    stop.request_stop();
    for (const Bytes& result :
         {run(client.post(path, {}, {}, stop.get_token())), run(client.get(path, {}, {}, stop.get_token())),
          run(client.upload(path, {}, {}, stop.get_token()))})
        EXPECT_EQ(result, Bytes(Unexpected(Failure(Cancelled{}))));
}

TEST_F(WidgetClientTest, ATokenThatIsRefusedIsReportedOnce)
{
    struct Row {
        int status;
        const char* code;
        Identity identity;
        bool isReported;
    };
    for (const Row& row : {
             Row{401, "", Identity::Customer, true},
             Row{403, "UNAUTHORIZED", Identity::Customer, true},
             Row{400, "REAUTH", Identity::Customer, true},
             Row{401, "CODE_INVALID", Identity::Customer, false},
             Row{403, "", Identity::Customer, false},
             Row{500, "", Identity::Customer, false},
             Row{401, "", Identity::Anonymous, false},
         }) {
        FakeSession fresh;
        fresh.signIn(QStringLiteral("app-1"), {}, {});
        WidgetClient calling(server.base(), QStringLiteral("key-1"), transport, fresh, random);
        const QJsonObject code{{QStringLiteral("code"), QLatin1String(row.code)}};
        server.expect("POST /api/support/widget/a", Answer::json(*row.code ? code : QJsonObject(), row.status));
        EXPECT_FALSE(run(calling.post(QStringLiteral("a"), {}, {.identity = row.identity}, {})));
        EXPECT_EQ(fresh.refusedTokens(), row.isReported ? QStringList(QStringLiteral("app-1")) : QStringList())
            << row.status << row.code;
    }

    // Nobody was signed in; and whoever signed in meanwhile has another token than the one that was refused.
    server.expect("POST /api/support/widget/a", Answer::body("", 401));
    EXPECT_FALSE(run(client.post(QStringLiteral("a"), {}, {}, {})));
    EXPECT_TRUE(session.refusedTokens().isEmpty());
    signIn();
    server.expect("POST /api/support/widget/a", Answer::body("{}", 401).pauseAfter(0));
    Running<Bytes> call(client.post(QStringLiteral("a"), {}, {}, {}));
    server.waitForRequests(9);
    session.signIn(QStringLiteral("app-2"), {}, {});
    server.proceed();
    EXPECT_FALSE(call.result());
    EXPECT_EQ(session.refusedTokens(), QStringList(QStringLiteral("app-1")));
}

} // namespace
