#pragma once

#include "support/TestAuthority.h"

#include <QByteArray>
#include <QHash>
#include <QJsonObject>
#include <QList>
#include <QSslServer>
#include <QUrl>

#include <deque>
#include <functional>
#include <memory>
#include <optional>
#include <vector>

namespace loom
{

/// A request exactly as it came over the wire.
struct ReceivedRequest {
    QByteArray method;
    QByteArray path;
    QByteArray query; ///< as sent, still encoded
    QList<std::pair<QByteArray, QByteArray>> headers;
    QByteArray body;
    int connection = 0; ///< counts from 1

    /// Empty when it was not sent. Names are compared without regard to case.
    [[nodiscard]] QByteArray header(const QByteArray& name) const;
    /// The body as a JSON object; empty when it is none.
    [[nodiscard]] QJsonObject json() const;
};

/// What a server does in reply to one request.
class Answer
{
public:
    /// A whole response with its Content-Length.
    [[nodiscard]] static Answer json(const QJsonObject& body, int status = 200);
    [[nodiscard]] static Answer body(const QByteArray& body, int status = 200,
                                     const QByteArray& contentType = "application/json");
    [[nodiscard]] static Answer redirect(const QUrl& target, int status = 302);
    /// These bytes and nothing else, whatever they mean; the connection stays open.
    [[nodiscard]] static Answer raw(const QByteArray& bytes);
    /// Bytes without an end, under a 200 without a length.
    [[nodiscard]] static Answer endless();
    /// Closes the connection without a word.
    [[nodiscard]] static Answer drop();
    /// Keeps the connection open without a word.
    [[nodiscard]] static Answer silence();

    Answer& header(const QByteArray& name, const QByteArray& value);
    /// Closes the connection once that many bytes of the body are out.
    Answer& cutAfter(qsizetype bodyBytes);
    /// Waits for TestServer::proceed() once that many bytes of the body are out. Positions ascend.
    Answer& pauseAfter(qsizetype bodyBytes);

private:
    friend class TestServer;
    enum class Kind { Response, Raw, Endless, Drop, Silence };

    [[nodiscard]] QByteArray head() const;

    Kind m_kind = Kind::Response;
    int m_status = 200;
    QList<std::pair<QByteArray, QByteArray>> m_headers;
    QByteArray m_body;
    std::optional<qsizetype> m_cut;
    std::vector<qsizetype> m_pauses;
};

/// A TLS server in this process, on a port of its own. Every request must be foretold: one that was not, and one that
/// was but never came, fails the test when the server goes away.
class TestServer
{
public:
    explicit TestServer(Credentials credentials = Credentials::Valid);
    TestServer(const TestServer&) = delete;
    TestServer& operator=(const TestServer&) = delete;
    ~TestServer();

    /// "localhost:<port>"
    [[nodiscard]] QString host() const;
    /// "https://localhost:<port>"
    [[nodiscard]] QString base() const { return QStringLiteral("https://") + host(); }
    [[nodiscard]] QUrl url(const QString& pathAndQuery) const { return QUrl(base() + pathAndQuery); }

    /// Foretells one request, such as "POST /api/pub/init", in whatever query and body it comes. Several of the same
    /// route are answered in turn.
    void expect(const QByteArray& route, Answer answer);
    /// Foretells any number of requests, none included.
    void allow(const QByteArray& route, const std::function<Answer(const ReceivedRequest&)>& answer);

    /// Lets every answer that has reached a pause go on.
    void proceed();

    [[nodiscard]] const std::deque<ReceivedRequest>& requests() const { return m_requests; }
    /// The only request so far; fails the test when there is none or more than one.
    [[nodiscard]] const ReceivedRequest& onlyRequest() const;
    /// Turns the event loop until that many requests have come.
    void waitForRequests(std::size_t count) const;
    /// How many were made so far.
    [[nodiscard]] int connections() const { return m_connectionCount; }
    [[nodiscard]] int openConnections() const;

private:
    class Connection;

    void accept();
    [[nodiscard]] Answer answerTo(const ReceivedRequest& request);

    std::deque<ReceivedRequest> m_requests;
    QHash<QByteArray, std::deque<Answer>> m_expected;
    QHash<QByteArray, std::function<Answer(const ReceivedRequest&)>> m_allowed;
    int m_connectionCount = 0;
    std::vector<std::unique_ptr<Connection>> m_connections;
    QSslServer m_listener;
};

} // namespace loom
