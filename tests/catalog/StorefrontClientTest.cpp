#include "catalog/StorefrontClient.h"

#include "catalog/StorefrontLanguage.h"
#include "support/StorefrontFixture.h"

#include <QSemaphore>

using namespace loom;
using namespace std::chrono_literals;

namespace
{

using Number = ApiResult<qint64>;

const QString query = QStringLiteral("query Q { q }");

qint64 readNumber(const JsonReader& data)
{
    return data.integer("n");
}

Number failed(APIError error)
{
    return Unexpected(Failure(std::move(error)));
}

const Number cancelled = Unexpected(Failure(Cancelled{}));

class StorefrontClientTest : public StorefrontFixture
{
protected:
    [[nodiscard]] QCoro::Task<Number> send(Retry retry, std::stop_token stop = {})
    {
        return client.send(query, {}, retry, readNumber, std::move(stop));
    }
    void pauseBeforeRetry(std::chrono::milliseconds pause)
    {
        const std::size_t before = sent();
        waitUntil([&] { return clock.nextWake() == pause; }, "the client waits before it tries again");
        clock.advance(pause - 1ms);
        EXPECT_EQ(clock.nextWake(), 1ms);
        EXPECT_EQ(sent(), before);
        clock.advance(1ms);
        server.waitForRequests(before + 1);
    }
};

TEST_F(StorefrontClientTest, ARequestIsSentByteForByte)
{
    answer("Q", json(R"({"n": 7})"));
    EXPECT_EQ(
        run(client.send(QStringLiteral("query Q($country: CountryCode) {\n  q(a: \"ł\")\n}"),
                        {{QStringLiteral("after"), QJsonValue::Null}, {QStringLiteral("a"), QStringLiteral("👗")}},
                        Retry::Never, readNumber, {})),
        Number(7));
    const ReceivedRequest& request = server.onlyRequest();
    EXPECT_EQ(request.query, "");
    EXPECT_EQ(request.header("Accept"), "application/json");
    EXPECT_EQ(request.header("Content-Type"), "application/json");
    EXPECT_EQ(request.header("X-Shopify-Storefront-Access-Token"), "token-1");
    EXPECT_EQ(request.header("Cookie"), "");
    EXPECT_EQ(request.body, R"({"query":"query Q($country: CountryCode) {\n  q(a: \"ł\")\n}",)"
                            R"("variables":{"a":"👗","after":null,"country":"US"}})");
}

TEST_F(StorefrontClientTest, CountryAndLanguageAreFilledWhereTheDocumentDeclaresThemAndTheCallerNamedNone)
{
    struct Row {
        const char* declaration;
        const char* variables;
        const char* sent;
    };
    client.setCountry(QStringLiteral("DE"));
    client.setLanguage(AppLanguage::ZhHant);
    for (const Row& row : {
             Row{"", "{}", "{}"},
             Row{"country", "{}", "{}"}, // no variable
             Row{"$country: CountryCode", "{}", R"({"country":"DE"})"},
             Row{"$language: LanguageCode", "{}", R"({"language":"ZH_TW"})"},
             Row{"$language: LanguageCode, $country: CountryCode", R"({"a":null})",
                 R"({"a":null,"country":"DE","language":"ZH_TW"})"},
             Row{"$country: CountryCode", R"({"country":"FR"})", R"({"country":"FR"})"},
         }) {
        const QJsonObject body =
            QJsonDocument::fromJson(client.requestBody(QLatin1String(row.declaration), json(row.variables).toObject()))
                .object();
        EXPECT_EQ(bytes(body.value(QStringLiteral("variables"))), row.sent) << row.declaration;
    }
}

TEST_F(StorefrontClientTest, TheMarketToBeginWithFollowsTheSystem)
{
    struct Row {
        const char* language;
        const char* region;
        const char* country;
        const char* sentLanguage;
    };
    for (const Row& row : {
             Row{"de", "at", "AT", "DE"},
             Row{"es", "419", "US", "ES"},
             Row{"es", "PR", "US", "ES"},
             Row{"xx", "FRA", "US", "EN"},
             Row{"pt", "br", "BR", "PT_BR"},
             Row{"zh", "SG", "SG", "ZH_CN"},
         }) {
        const StorefrontClient fresh(
            server.host(), QStringLiteral("token-1"),
            {.language = QLatin1String(row.language), .script = {}, .region = QLatin1String(row.region)}, transport,
            clock);
        EXPECT_EQ(fresh.country(), QLatin1String(row.country)) << row.language << '-' << row.region;
        EXPECT_TRUE(fresh.requestBody(QStringLiteral("$language"), {})
                        .contains(QByteArray("\"language\":\"") + row.sentLanguage + '"'))
            << row.language << '-' << row.region;
    }
    for (const char* const none : {"", "U", "us", "U ", " U", "US ", "PR", "AQ", "Ü"})
        EXPECT_FALSE(isStorefrontCountry(QString::fromUtf8(none))) << none;
}

TEST_F(StorefrontClientTest, EveryFailureIsReportedAndOnlyAPassingOneIsTriedAgain)
{
    struct Row {
        Answer answer;
        APIError error;
        bool passes;
    };
    const auto http = [](int status) {
        const auto code = status == 429 ? std::optional(QStringLiteral("RATE_LIMITED")) : std::nullopt;
        return APIError{APIError::Http{.status = status, .code = code, .message = {}}};
    };
    const auto refusal = [](const QStringList& messages) {
        return APIError{APIError::GraphQL{messages}};
    };
    const APIError invalid{APIError::InvalidResponse{}};
    const auto undecodable = [](const char* why) {
        return APIError{APIError::Decoding{QString::fromLatin1(why)}};
    };
    std::vector<Row> rows{
        {Answer::body(R"({"errors":[{"message":"no"}],"data":{"n":1}})"), refusal({QStringLiteral("no")}), false},
        {Answer::body(R"({"errors":[{"message":"a"},{"x":1},{"message":"b"}]})"),
         refusal({QStringLiteral("a"), QString(), QStringLiteral("b")}), false},
        {Answer::body(R"({"errors":[{"message":"no"},{"message":"Was tHROTTLEd."}]})"),
         refusal({QStringLiteral("no"), QStringLiteral("Was tHROTTLEd.")}), true},
        {Answer::body(R"({"data":null})"), invalid, false},
        {Answer::body("[]"), undecodable("document: expected an object"), false},
        {Answer::body(R"({"data":5})"), undecodable("data: expected an object"), false},
        {Answer::body(R"({"data":{"n":"x"}})"), undecodable("data.n: expected a whole number"), false},
    };
    for (const int status : {302, 404})
        rows.push_back({Answer::body(R"({"data":{"n":1},"code":"X","message":"m"})", status), http(status), false});
    for (const int status : {429, 503})
        rows.push_back({Answer::body(R"({"code":"X","message":"m"})", status), http(status), true});

    for (const Row& row : rows) {
        const std::size_t before = sent();
        answer("Q", row.answer);
        EXPECT_EQ(run(send(Retry::Never)), failed(row.error));
        for (int i = 0; i < (row.passes ? 3 : 1); ++i)
            answer("Q", row.answer);
        Running<Number> retried(send(Retry::Transient));
        if (row.passes) {
            server.waitForRequests(before + 2);
            pauseBeforeRetry(500ms);
            pauseBeforeRetry(1s);
        }
        EXPECT_EQ(retried.result(), failed(row.error));
        EXPECT_EQ(sent(), before + (row.passes ? 4 : 2));
        EXPECT_EQ(clock.sleepers(), 0);
    }

    // A connection that goes may take the next request with it, before it has been received.
    for (const Answer& gone : {Answer::drop(), Answer::body("{\"data\":{\"n\":1}}").cutAfter(9)}) {
        const std::size_t before = sent();
        for (const Retry retry : {Retry::Never, Retry::Transient}) {
            answer("Q", gone);
            EXPECT_EQ(run(send(retry)), failed({APIError::Offline{}}));
        }
        EXPECT_LE(sent(), before + 2);
        EXPECT_EQ(clock.sleepers(), 0);
    }
}

TEST_F(StorefrontClientTest, ACallIsCancelledWhileItIsSentAndWhileItWaitsToBeSentAgain)
{
    std::stop_source sending;
    answer("Q", Answer::silence());
    Running<Number> first(send(Retry::Transient, sending.get_token()));
    server.waitForRequests(1);
    sending.request_stop();
    EXPECT_EQ(first.result(), cancelled);

    std::stop_source pausing;
    answer("Q", Answer::body("", 503));
    Running<Number> second(send(Retry::Transient, pausing.get_token()));
    waitUntil([this] { return clock.nextWake() == 500ms; }, "the client waits before it tries again");
    pausing.request_stop();
    EXPECT_EQ(second.result(), cancelled);
    EXPECT_EQ(sent(), 2U);
    EXPECT_EQ(clock.sleepers(), 0);
}

QSemaphore decoding;
QSemaphore proceed;

qint64 readSlowly(const JsonReader& data)
{
    decoding.release();
    QMetaObject::invokeMethod(qApp, [] {}, Qt::QueuedConnection); // whoever waits for it looks again
    proceed.acquire();
    return data.integer("n");
}

TEST_F(StorefrontClientTest, WhatIsDecodedForNobodyIsDroppedAlsoWhenTheClientIsGone)
{
    for (const char* const body : {R"({"data":{"n":1}})", R"({"data":{}})"}) {
        for (const bool clientGoes : {false, true}) {
            std::optional<StorefrontClient> ours(std::in_place, server.host(), QStringLiteral("token-1"), locale,
                                                 transport, clock);
            std::stop_source stop;
            answer("Q", Answer::body(body));
            Running<Number> call(ours->send(query, {}, Retry::Transient, readSlowly, stop.get_token()));
            waitUntil([] { return decoding.tryAcquire(); }, "an answer is being decoded");
            stop.request_stop();
            if (clientGoes)
                ours.reset();
            proceed.release();
            EXPECT_EQ(call.result(), cancelled);
        }
    }
}

} // namespace
