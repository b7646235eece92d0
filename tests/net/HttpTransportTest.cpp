#include "net/HttpTransport.h"

#include "support/FakeClock.h"
#include "support/FakeNetworkStatus.h"
#include "support/TestServer.h"

#include <QNetworkProxy>
#include <QTcpServer>
#include <QTcpSocket>

using namespace loom;
using namespace std::chrono_literals;

namespace
{

using Response = ApiResult<HttpResponse>;

class HttpTransportTest : public testing::Test
{
protected:
    HttpTransportTest()
    {
        server.allow("GET /settle", [](const ReceivedRequest&) { return Answer::body("settled"); });
    }

    [[nodiscard]] HttpRequest get(const QString& path) const { return {.url = server.url(path)}; }
    [[nodiscard]] HttpRequest post(const QString& path, const QByteArray& body = "{}") const
    {
        return {.method = HttpMethod::Post,
                .url = server.url(path),
                .headers = {{"Content-Type", "application/json"}},
                .body = body};
    }
    Response send(HttpRequest request) { return run(transport->send(std::move(request), {})); }
    [[nodiscard]] Running<Response> begin(HttpRequest request, std::stop_token stop = {})
    {
        return Running<Response>(transport->send(std::move(request), std::move(stop)));
    }
    /// Everything that was sent before has arrived after it.
    void settle() { ASSERT_TRUE(send(get(QStringLiteral("/settle")))); }
    [[nodiscard]] std::size_t requests(const QByteArray& path) const
    {
        return static_cast<std::size_t>(
            std::ranges::count_if(server.requests(), [&path](const auto& request) { return request.path == path; }));
    }

    FakeClock clock;
    FakeNetworkStatus network;
    TestServer server;
    std::optional<HttpTransport> transport{std::in_place, clock, network};
};

const Response timeout = apiFailure(APIError::Timeout{});
const Response offline = apiFailure(APIError::Offline{});
const Response cancelled = Unexpected(Failure(Cancelled{}));

Response answered(int status, const QByteArray& body)
{
    return HttpResponse{.status = status, .body = body};
}

bool isNetworkFailure(const Response& response)
{
    return !response && !response.error().isCancelled() && response.error().error().as<APIError::Network>();
}

TEST_F(HttpTransportTest, AnAnswerOfAnyStatusIsAResponseWithItsBody)
{
    for (const int status : {200, 204, 304, 400, 401, 403, 407, 410, 429, 500, 599}) {
        for (const char* const challenge : {"", "Basic realm=\"store\"", "Bearer"}) {
            const QByteArray body = status == 204 || status == 304 ? "" : R"({"code":"WHY"})";
            Answer answer = Answer::body(body, status);
            if (*challenge)
                answer.header("WWW-Authenticate", challenge);
            server.expect("POST /a", answer);
            server.expect("GET /a", answer.pauseAfter(3));
            for (const HttpRequest& request : {post(QStringLiteral("/a")), get(QStringLiteral("/a"))}) {
                Running<Response> running = begin(request);
                waitUntil([&] { return running.isDone() || (server.proceed(), false); }, "an answer has come");
                EXPECT_EQ(running.result(), answered(status, body)) << challenge;
            }
        }
    }
}

TEST_F(HttpTransportTest, NothingIsRememberedBetweenCalls)
{
    const auto answer = [] {
        return Answer::body("a").header("Set-Cookie", "id=1; Secure").header("Cache-Control", "max-age=3600");
    };
    server.expect("GET /a", answer());
    server.expect("GET /a", answer());
    server.expect("POST /a", answer().cutAfter(1)); // a connection that is closed after it does no harm
    for (const HttpRequest& request :
         {get(QStringLiteral("/a")), get(QStringLiteral("/a")), post(QStringLiteral("/a"))})
        EXPECT_EQ(send(request), answered(200, "a"));
    settle();
    server.expect("POST /a", answer());
    EXPECT_EQ(send(post(QStringLiteral("/a"))), answered(200, "a"));
    for (const ReceivedRequest& request : server.requests())
        EXPECT_EQ(request.header("Cookie"), "");
}

TEST_F(HttpTransportTest, TimeoutsFollowTheClock)
{
    struct Row {
        std::optional<std::chrono::milliseconds> silence;
        std::optional<std::chrono::milliseconds> total;
        std::chrono::milliseconds ends;
    };
    for (const Row& row : {Row{10s, {}, 10s}, Row{{}, 20s, 20s}, Row{15s, 40s, 15s}, Row{40s, 15s, 15s}}) {
        for (const bool isOffline : {false, true}) {
            server.expect("POST /a", Answer::silence());
            HttpRequest request = post(QStringLiteral("/a"));
            request.silence = row.silence;
            request.total = row.total;
            const std::size_t before = server.requests().size();
            Running<Response> running = begin(request);
            server.waitForRequests(before + 1);
            EXPECT_EQ(clock.nextWake(), row.ends);
            clock.advance(row.ends - 1ms);
            EXPECT_FALSE(running.isDone());
            network.setOffline(isOffline);
            clock.advance(1ms);
            EXPECT_EQ(running.result(), isOffline ? offline : timeout);
            EXPECT_EQ(clock.sleepers(), 0);
            network.setOffline(false);
        }
    }
}

TEST_F(HttpTransportTest, EverythingThatArrivesEndsASilenceButNotTheWholeTime)
{
    const QByteArray head = "HTTP/1.1 200 OK\r\nContent-Length: 10\r\n\r\n";
    HttpRequest request = get(QStringLiteral("/a"));
    request.silence = 10s;
    for (const std::chrono::milliseconds total : {46s, 45s}) {
        request.total = total;
        server.expect("GET /a", Answer::raw(head + "0123456789")
                                    .pauseAfter(0)
                                    .pauseAfter(head.size())
                                    .pauseAfter(head.size() + 1)
                                    .pauseAfter(head.size() + 5)
                                    .pauseAfter(head.size() + 9));
        const std::size_t before = requests("/a");
        Running<Response> running = begin(request);
        waitUntil([&] { return requests("/a") > before; }, "the request has come");
        for (int i = 0; i < 5; ++i) {
            clock.advance(9s);
            ASSERT_EQ(running.isDone(), i == 4 && total == 45s) << i;
            server.proceed();
            settle();
        }
        EXPECT_EQ(running.result(), total == 46s ? answered(200, "0123456789") : timeout);
        EXPECT_EQ(clock.sleepers(), 0);
    }
}

TEST_F(HttpTransportTest, ACallIsCancelledInEveryPhase)
{
    std::stop_source before;
    before.request_stop();
    EXPECT_EQ(run(transport->send(get(QStringLiteral("/never")), before.get_token())), cancelled);

    std::stop_source connecting;
    QTcpServer mute; // accepts, and never speaks TLS
    ASSERT_TRUE(mute.listen(QHostAddress::LocalHost));
    HttpRequest toMute = get({});
    toMute.url = QUrl(QStringLiteral("https://localhost:%1/").arg(mute.serverPort()));
    toMute.total = 20s;
    Running<Response> stuck = begin(toMute, connecting.get_token());
    waitUntil([&mute] { return mute.hasPendingConnections(); }, "the transport connects");
    connecting.request_stop();
    EXPECT_TRUE(stuck.isDone());
    EXPECT_EQ(stuck.result(), cancelled);

    std::stop_source waiting;
    server.expect("POST /a", Answer::silence());
    Running<Response> unanswered = begin(post(QStringLiteral("/a")), waiting.get_token());
    server.waitForRequests(1);
    waiting.request_stop();
    EXPECT_TRUE(unanswered.isDone());
    EXPECT_EQ(unanswered.result(), cancelled);

    std::stop_source reading;
    server.expect("GET /b", Answer::body("0123456789").pauseAfter(5));
    HttpRequest request = get(QStringLiteral("/b"));
    request.silence = 10s;
    Running<Response> half = begin(request, reading.get_token());
    server.waitForRequests(2);
    settle();
    reading.request_stop();
    EXPECT_TRUE(half.isDone());
    EXPECT_EQ(half.result(), cancelled);
    waitUntil([this] { return server.openConnections() <= 1; }, "the connections of cancelled calls are closed");

    EXPECT_EQ(clock.sleepers(), 0);
}

TEST_F(HttpTransportTest, ALostConnectionIsOfflineAndNoPostIsSentTwice)
{
    for (const qsizetype size : {0, 2, 16 * 1024, 20'000, 200'000, 20'000'000}) {
        const std::size_t before = requests("/a");
        settle(); // on a connection that has served before a client is tempted most to try again
        server.expect("POST /a", Answer::drop());
        EXPECT_EQ(send(post(QStringLiteral("/a"), QByteArray(size, 'x'))), offline);
        EXPECT_EQ(requests("/a"), before + 1) << size;
    }

    server.expect("POST /c", Answer::body("0123456789").cutAfter(4));
    EXPECT_EQ(send(post(QStringLiteral("/c"))), offline);
    server.expect("POST /c", Answer::body("error", 500).cutAfter(4));
    EXPECT_EQ(send(post(QStringLiteral("/c"))), offline);
    server.expect("POST /c",
                  Answer::raw("HTTP/1.1 200 OK\r\nTransfer-Encoding: chunked\r\n\r\n5\r\nhel").cutAfter(999));
    EXPECT_EQ(send(post(QStringLiteral("/c"))), offline);
    EXPECT_EQ(requests("/c"), 3U);

    // A read may be repeated, and is given up some time.
    server.allow("GET /d", [](const ReceivedRequest&) { return Answer::drop(); });
    EXPECT_EQ(send(get(QStringLiteral("/d"))), offline);
    server.expect("POST /a", Answer::body("again"));
    EXPECT_EQ(send(post(QStringLiteral("/a"))), answered(200, "again"));
}

TEST_F(HttpTransportTest, WhatAProxyRefusesIsAFailureOfTheNetwork)
{
    QTcpServer proxy;
    ASSERT_TRUE(proxy.listen(QHostAddress::LocalHost));
    QObject::connect(&proxy, &QTcpServer::newConnection, &proxy, [&proxy] {
        QTcpSocket* const client = proxy.nextPendingConnection();
        QObject::connect(client, &QTcpSocket::readyRead, client, [client] {
            client->write("HTTP/1.1 407 Not for you\r\nProxy-Authenticate: Basic\r\nContent-Length: 0\r\n\r\n");
            client->readAll();
        });
    });
    const QNetworkProxy before = QNetworkProxy::applicationProxy();
    QNetworkProxy::setApplicationProxy({QNetworkProxy::HttpProxy, QStringLiteral("127.0.0.1"), proxy.serverPort()});
    const Response refused = send({.url = QUrl(QStringLiteral("https://store.invalid/a"))});
    QNetworkProxy::setApplicationProxy(before);
    EXPECT_TRUE(isNetworkFailure(refused)) << testing::PrintToString(refused);
}

TEST_F(HttpTransportTest, AnAnswerThatMakesNoSenseIsAFailure)
{
    HttpRequest request = post(QStringLiteral("/a"));
    request.total = 20s;
    for (const char* const bytes : {"", "SSH-2.0-OpenSSH\r\n", "HTTP/1.1 what\r\n\r\n", "HTTP/1.1 200 OK\r\nContent-Le",
                                    "HTTP/1.1 200 OK\r\nContent-Encoding: gzip\r\nContent-Length: 5\r\n\r\nabcde"}) {
        server.expect("POST /a", Answer::raw(bytes).cutAfter(999));
        EXPECT_FALSE(send(request)) << bytes;
    }
    server.expect("GET /a", Answer::endless());
    EXPECT_EQ(send(get(QStringLiteral("/a"))),
              Response(apiFailure(APIError::Network{QStringLiteral("the answer is too large")})));
}

TEST_F(HttpTransportTest, OnlyAReadIsRedirectedAndOnlyWithinItsOrigin)
{
    QUrl target = server.url(QStringLiteral("/b?x=1"));
    server.allow("GET /a", [&target](const ReceivedRequest&) { return Answer::redirect(target); });
    server.expect("GET /b", Answer::body("b"));
    HttpRequest request = get(QStringLiteral("/a"));
    request.headers = {{"X-Token", "t-1"}};
    EXPECT_EQ(send(request), answered(200, "b"));
    EXPECT_EQ(server.requests().back().query, "x=1");
    EXPECT_EQ(server.requests().back().header("X-Token"), "t-1");

    const TestServer other;
    for (const QString& elsewhere :
         {other.base() + QStringLiteral("/b"), server.base().replace(QStringLiteral("https"), QStringLiteral("http")),
          QStringLiteral("https://127.0.0.1:%1/b").arg(server.url({}).port()), QStringLiteral("file:///etc/hostname"),
          QStringLiteral("data:,b")}) {
        target = QUrl(elsewhere);
        EXPECT_TRUE(isNetworkFailure(send(request))) << elsewhere.toStdString();
    }
    target = server.url(QStringLiteral("/a")); // round and round
    EXPECT_TRUE(isNetworkFailure(send(request)));
    EXPECT_EQ(other.connections(), 0);

    for (const int status : {301, 302, 303, 307, 308}) {
        server.expect("POST /a", Answer::redirect(server.url(QStringLiteral("/b")), status));
        EXPECT_EQ(send(post(QStringLiteral("/a"))), answered(status, ""));
    }
}

TEST_F(HttpTransportTest, AServerThatCannotProveWhoItIsGetsNoRequest)
{
    for (const Credentials credentials :
         {Credentials::ForeignAuthority, Credentials::OtherHost, Credentials::Expired}) {
        const TestServer impostor(credentials);
        HttpRequest request = post({});
        request.url = impostor.url(QStringLiteral("/a"));
        EXPECT_TRUE(isNetworkFailure(send(request)));
        EXPECT_TRUE(impostor.requests().empty());
    }
}

TEST_F(HttpTransportTest, WhoeverWaitsWhenTheTransportGoesIsToldSo)
{
    server.expect("POST /a", Answer::silence());
    server.expect("GET /b", Answer::body("0123456789").pauseAfter(5));
    HttpRequest timed = post(QStringLiteral("/a"));
    timed.silence = 10s;
    timed.total = 20s;
    Running<Response> first = begin(timed);
    Running<Response> second = begin(get(QStringLiteral("/b")));
    // One that does not take a cancellation for an answer.
    const auto again = [](HttpTransport* through, HttpRequest request) -> QCoro::Task<Response> {
        static_cast<void>(co_await through->send(request, {}));
        co_return co_await through->send(request, {});
    };
    server.expect("POST /c", Answer::silence());
    Running<Response> third(again(&*transport, post(QStringLiteral("/c"))));
    server.waitForRequests(3);
    settle();
    transport.reset();
    for (Running<Response>* const running : {&first, &second, &third}) {
        EXPECT_TRUE(running->isDone());
        EXPECT_EQ(running->result(), cancelled);
    }
    EXPECT_EQ(clock.sleepers(), 0);
}

} // namespace
