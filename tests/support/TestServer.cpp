#include "support/TestServer.h"

#include "support/Running.h"

#include <QJsonDocument>
#include <QSslSocket>

#include <gtest/gtest.h>

#include <algorithm>
#include <utility>

namespace loom
{

namespace
{

constexpr qsizetype endlessBlock = 256L * 1024;

} // namespace

QByteArray ReceivedRequest::header(const QByteArray& name) const
{
    for (const auto& [key, value] : headers) {
        if (key.compare(name, Qt::CaseInsensitive) == 0)
            return value;
    }
    return {};
}

QJsonObject ReceivedRequest::json() const
{
    return QJsonDocument::fromJson(body).object();
}

Answer Answer::json(const QJsonObject& body, int status)
{
    return Answer::body(QJsonDocument(body).toJson(QJsonDocument::Compact), status);
}

Answer Answer::body(const QByteArray& body, int status, const QByteArray& contentType)
{
    Answer answer;
    answer.m_status = status;
    answer.m_body = body;
    return answer.header("Content-Type", contentType).header("Content-Length", QByteArray::number(body.size()));
}

Answer Answer::redirect(const QUrl& target, int status)
{
    return Answer::body({}, status).header("Location", target.toEncoded());
}

Answer Answer::raw(const QByteArray& bytes)
{
    Answer answer;
    answer.m_kind = Kind::Raw;
    answer.m_body = bytes;
    return answer;
}

Answer Answer::endless()
{
    Answer answer;
    answer.m_kind = Kind::Endless;
    return answer;
}

Answer Answer::drop()
{
    Answer answer;
    answer.m_kind = Kind::Drop;
    return answer;
}

Answer Answer::silence()
{
    Answer answer;
    answer.m_kind = Kind::Silence;
    return answer;
}

Answer& Answer::header(const QByteArray& name, const QByteArray& value)
{
    m_headers.append({name, value});
    return *this;
}

Answer& Answer::cutAfter(qsizetype bodyBytes)
{
    m_cut = bodyBytes;
    return *this;
}

Answer& Answer::pauseAfter(qsizetype bodyBytes)
{
    m_pauses.push_back(bodyBytes);
    return *this;
}

QByteArray Answer::head() const
{
    if (m_kind == Kind::Raw)
        return {};
    QByteArray head = "HTTP/1.1 " + QByteArray::number(m_status) + " Told\r\n";
    for (const auto& [name, value] : m_headers)
        head += name + ": " + value + "\r\n";
    return head + "\r\n";
}

/// One client's connection: reads requests off it and sends the answers.
class TestServer::Connection
{
public:
    Connection(TestServer& server, QSslSocket* socket, int number)
        : m_server(server)
        , m_socket(socket)
        , m_number(number)
    {
        socket->setParent(nullptr);
        // Each piece goes out when it is written, not when the one before it was acknowledged.
        socket->setSocketOption(QAbstractSocket::LowDelayOption, 1);
        QObject::connect(socket, &QSslSocket::readyRead, socket, [this] { read(); });
        QObject::connect(socket, &QSslSocket::encryptedBytesWritten, socket, [this] { sendEndlessly(); });
        read();
    }
    Connection(const Connection&) = delete;
    Connection& operator=(const Connection&) = delete;
    ~Connection()
    {
        m_socket->disconnect();
        m_socket->abort();
    }

    [[nodiscard]] bool isOpen() const { return m_socket->state() == QAbstractSocket::ConnectedState; }

    void proceed()
    {
        if (m_answer && m_isPaused)
            send();
    }

private:
    void read()
    {
        m_received += m_socket->readAll();
        while (!m_answer) {
            std::optional<ReceivedRequest> request = takeRequest();
            if (!request)
                return;
            m_server.m_requests.push_back(*std::move(request));
            m_answer = m_server.answerTo(m_server.m_requests.back());
            begin();
        }
    }

    std::optional<ReceivedRequest> takeRequest()
    {
        const qsizetype headEnd = m_received.indexOf("\r\n\r\n");
        if (headEnd < 0)
            return std::nullopt;
        ReceivedRequest request;
        request.connection = m_number;
        QByteArrayList lines = m_received.left(headEnd).split('\n');
        const QByteArrayList start = lines.takeFirst().trimmed().split(' ');
        request.method = start.value(0);
        const QByteArray target = start.value(1);
        const qsizetype mark = target.indexOf('?');
        request.path = mark < 0 ? target : target.left(mark);
        request.query = mark < 0 ? QByteArray() : target.mid(mark + 1);
        for (const QByteArray& line : std::as_const(lines)) {
            const qsizetype colon = line.indexOf(':');
            request.headers.append({line.left(colon), line.mid(colon + 1).trimmed()});
        }
        const qsizetype end = headEnd + 4 + request.header("Content-Length").toLongLong();
        if (m_received.size() < end)
            return std::nullopt;
        request.body = m_received.mid(headEnd + 4, end - headEnd - 4);
        m_received.remove(0, end);
        return request;
    }

    void begin()
    {
        switch (m_answer->m_kind) {
        case Answer::Kind::Response:
        case Answer::Kind::Raw:
            m_socket->write(m_answer->head());
            m_sent = 0;
            m_pausesTaken = 0;
            send();
            return;
        case Answer::Kind::Endless:
            m_socket->write(m_answer->head());
            sendEndlessly();
            return;
        case Answer::Kind::Drop:
            m_socket->abort();
            return;
        case Answer::Kind::Silence:
            return;
        }
    }

    void send()
    {
        const std::vector<qsizetype>& pauses = m_answer->m_pauses;
        const qsizetype end = std::min(m_answer->m_body.size(), m_answer->m_cut.value_or(m_answer->m_body.size()));
        m_isPaused = m_pausesTaken < pauses.size() && pauses.at(m_pausesTaken) <= end;
        const qsizetype next = m_isPaused ? pauses.at(m_pausesTaken) : end;
        m_socket->write(m_answer->m_body.mid(m_sent, next - m_sent));
        m_socket->flush();
        m_sent = next;
        if (m_isPaused) {
            ++m_pausesTaken;
            return;
        }
        if (m_answer->m_cut)
            m_socket->disconnectFromHost();
        else
            m_answer.reset();
    }

    void sendEndlessly()
    {
        if (m_answer && m_answer->m_kind == Answer::Kind::Endless && m_socket->encryptedBytesToWrite() == 0)
            m_socket->write(QByteArray(endlessBlock, 'x'));
    }

    struct DeleteLater {
        void operator()(QSslSocket* socket) const { socket->deleteLater(); }
    };

    TestServer& m_server;
    std::unique_ptr<QSslSocket, DeleteLater> m_socket;
    int m_number;
    QByteArray m_received;
    std::optional<Answer> m_answer;
    qsizetype m_sent = 0;
    bool m_isPaused = false;
    std::size_t m_pausesTaken = 0;
};

TestServer::TestServer(Credentials credentials)
{
    m_listener.setSslConfiguration(serverConfiguration(credentials));
    QObject::connect(&m_listener, &QSslServer::pendingConnectionAvailable, &m_listener, [this] { accept(); });
    if (!m_listener.listen(QHostAddress::LocalHost))
        ADD_FAILURE() << "the test server cannot listen";
}

TestServer::~TestServer()
{
    for (auto route = m_expected.cbegin(); route != m_expected.cend(); ++route) {
        if (!route.value().empty())
            ADD_FAILURE() << route.value().size() << " requests never came: " << route.key().constData();
    }
}

QString TestServer::host() const
{
    return QStringLiteral("localhost:%1").arg(m_listener.serverPort());
}

void TestServer::expect(const QByteArray& route, Answer answer)
{
    m_expected[route].push_back(std::move(answer));
}

void TestServer::allow(const QByteArray& route, const std::function<Answer(const ReceivedRequest&)>& answer)
{
    m_allowed.insert(route, answer);
}

void TestServer::proceed()
{
    for (const auto& connection : m_connections)
        connection->proceed();
}

const ReceivedRequest& TestServer::onlyRequest() const
{
    static const ReceivedRequest none;
    EXPECT_EQ(m_requests.size(), 1U);
    return m_requests.empty() ? none : m_requests.front();
}

void TestServer::waitForRequests(std::size_t count) const
{
    waitUntil([this, count] { return m_requests.size() >= count; }, std::to_string(count) + " requests have come");
}

int TestServer::openConnections() const
{
    return static_cast<int>(std::ranges::count_if(m_connections, &Connection::isOpen));
}

void TestServer::accept()
{
    while (auto* const socket = qobject_cast<QSslSocket*>(m_listener.nextPendingConnection()))
        m_connections.push_back(std::make_unique<Connection>(*this, socket, ++m_connectionCount));
}

Answer TestServer::answerTo(const ReceivedRequest& request)
{
    const QByteArray route = request.method + ' ' + request.path;
    if (const auto expected = m_expected.find(route); expected != m_expected.end() && !expected->empty()) {
        Answer answer = std::move(expected->front());
        expected->pop_front();
        return answer;
    }
    if (const auto allowed = m_allowed.constFind(route); allowed != m_allowed.cend())
        return (*allowed)(request);
    ADD_FAILURE() << "unexpected request: " << route.constData() << ' ' << request.query.constData() << ' '
                  << request.body.left(500).constData();
    return Answer::body("{}", 418);
}

} // namespace loom
