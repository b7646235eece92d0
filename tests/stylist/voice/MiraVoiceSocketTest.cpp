#include "stylist/voice/MiraVoiceSocket.h"

#include "stylist/voice/MiraVoiceFormat.h"
#include "support/Json.h"
#include "support/Printing.h"
#include "support/Running.h"
#include "support/TestServer.h"

#include <QCryptographicHash>
#include <QElapsedTimer>
#include <QSslServer>
#include <QTcpServer>
#include <QTimer>
#include <QWebSocket>
#include <QWebSocketServer>

#include <memory>

using namespace loom;
using namespace std::chrono_literals;

namespace
{

/// The service's end of a line, over TLS.
class Service
{
public:
    explicit Service(Credentials credentials = Credentials::Valid)
    {
        m_server.setSslConfiguration(serverConfiguration(credentials));
        QObject::connect(&m_server, &QWebSocketServer::newConnection, [this] { accept(); });
        EXPECT_TRUE(m_server.listen(QHostAddress::LocalHost));
    }

    [[nodiscard]] QUrl address() const
    {
        return QUrl(QStringLiteral("wss://localhost:%1/api/support/widget/voice/rt").arg(m_server.serverPort()));
    }
    [[nodiscard]] QWebSocket& line() { return *m_lines.back(); }
    void waitForFrames(qsizetype count) const
    {
        waitUntil([this, count] { return frames.size() >= count; }, "frames have come");
    }
    void say(const QByteArray& frame) { line().sendTextMessage(QString::fromUtf8(frame)); }

    QStringList frames; ///< that came, of all lines
    QList<int> ends;    ///< the reason each line was closed with

private:
    void accept()
    {
        // In secure mode nobody else owns it.
        QWebSocket* const socket = m_lines.emplace_back(m_server.nextPendingConnection()).get();
        QObject::connect(socket, &QWebSocket::textMessageReceived, socket,
                         [this](const QString& frame) { frames.append(frame); });
        QObject::connect(socket, &QWebSocket::disconnected, socket,
                         [this, socket] { ends.append(socket->closeCode()); });
    }

    QWebSocketServer m_server{QStringLiteral("service"), QWebSocketServer::SecureMode};
    std::vector<std::unique_ptr<QWebSocket>> m_lines;
};

/// The answer to the request that opens a web socket (RFC 6455).
QByteArray handshake(const QByteArray& key)
{
    const QByteArray proof = key + "258EAFA5-E914-47DA-95CA-C5AB0DC85B11";
    return "HTTP/1.1 101 Switching Protocols\r\nUpgrade: websocket\r\nConnection: Upgrade\r\nSec-WebSocket-Accept: " +
           QCryptographicHash::hash(proof, QCryptographicHash::Sha1).toBase64() + "\r\n\r\n";
}

/// What a line tells, in its order.
QStringList& listen(MiraVoiceSocket& socket, QStringList& told)
{
    QObject::connect(&socket, &MiraVoiceSocket::opened, &socket, [&told] { told.append(QStringLiteral("opened")); });
    QObject::connect(&socket, &MiraVoiceSocket::received, &socket, [&told](const MiraVoiceEvent& event) {
        const auto* const line = std::get_if<MiraVoiceEvent::Line>(&event.content);
        told.append(line ? line->text : QStringLiteral("event %1").arg(event.content.index()));
    });
    QObject::connect(&socket, &MiraVoiceSocket::closed, &socket, [&told](bool isNormal, bool wasOpen) {
        told.append(QStringLiteral("closed %1 %2").arg(isNormal).arg(wasOpen));
    });
    return told;
}

class MiraVoiceSocketTest : public testing::Test
{
protected:
    void open()
    {
        socket.open(service.address(), opening);
        service.waitForFrames(1);
        waitUntil([this] { return socket.isOpen(); }, "the line is open");
    }
    void waitFor(const QString& event) const
    {
        waitUntil([this, &event] { return told.contains(event); }, event.toStdString());
    }

    Service service;
    const MiraVoiceOpening opening{.visitorId = "v-1"};
    MiraVoiceSocket socket;
    QStringList told;
    QStringList& listening = listen(socket, told);
};

const QStringList dropped{"opened", "closed 0 1"};

} // namespace

TEST_F(MiraVoiceSocketTest, AnOpeningThenSpeechInItsOrderThenAFarewell)
{
    EXPECT_FALSE(socket.isOpen());
    socket.sendAudio({1}); // nobody is there yet
    open();
    for (int i = 0; i < 20; ++i)
        socket.sendAudio({static_cast<float>(i)});
    socket.hangUp();
    EXPECT_FALSE(socket.isOpen());
    socket.sendAudio({1});
    waitUntil([this] { return !service.ends.isEmpty(); }, "the line is closed");

    QStringList expected{QString::fromUtf8(MiraVoiceFrames::opening(opening))};
    for (int i = 0; i < 20; ++i)
        expected.append(QString::fromUtf8(MiraVoiceFrames::audio(std::vector{static_cast<float>(i)})));
    expected.append(QStringLiteral(R"({"type":"hangup"})"));
    EXPECT_EQ(service.frames, expected);
    EXPECT_EQ(service.ends, QList<int>{1000});
    drainEvents();
    EXPECT_EQ(told, QStringList{"opened"});
}

TEST_F(MiraVoiceSocketTest, WhatTheServiceSaysComesInItsOrderAndTheRestIsIgnored)
{
    open();
    service.say("no JSON");
    service.line().sendBinaryMessage(R"({"type": "ready"})");
    service.say(R"({"type": "ready"})");
    service.say(R"({"type": "tts", "b64": ")" + QByteArray(10 << 20, 'A') + R"("})");
    service.say(R"({"type": "chat", "text": "one"})");
    service.say(R"({"type": "chat", "text": "two"})");
    service.line().close(QWebSocketProtocol::CloseCodeNormal);
    waitFor("closed 1 1");
    EXPECT_EQ(told, (QStringList{"opened", "event 0", "event 2", "one", "two", "closed 1 1"}));
    EXPECT_FALSE(socket.isOpen());
}

TEST_F(MiraVoiceSocketTest, ALineThatEndsOtherwiseWasDropped)
{
    open();
    service.line().close(QWebSocketProtocol::CloseCodeGoingAway);
    waitFor("closed 0 1");
    EXPECT_EQ(told, dropped);

    told.clear();
    open();
    service.line().abort();
    waitFor("closed 0 1");
    EXPECT_EQ(told, dropped);

    told.clear();
    open();
    service.say(QByteArray(qsizetype{MiraVoiceSocket::longestFrame} + 1, ' '));
    waitFor("closed 0 1");
    EXPECT_EQ(told, dropped);
    drainEvents();
    EXPECT_EQ(told, dropped);
}

TEST_F(MiraVoiceSocketTest, ALineThatBreaksInTheMiddleOfAFrameWasDropped)
{
    TestServer server;
    server.allow("GET /line", [](const ReceivedRequest& request) {
        const QByteArray answer = handshake(request.header("Sec-WebSocket-Key")) + "\x81\x10{\"type\":";
        return Answer::raw(answer).cutAfter(answer.size());
    });
    socket.open(QUrl(QStringLiteral("wss://") + server.host() + QStringLiteral("/line")), opening);
    waitFor("closed 0 1");
    EXPECT_EQ(told, dropped);
}

TEST_F(MiraVoiceSocketTest, AServiceThatIsNotThereOrIsNotToBeTrustedGetsNothing)
{
    Service stranger(Credentials::ForeignAuthority);
    Service other(Credentials::OtherHost);
    TestServer website;
    website.expect("GET /", Answer::body("no line here", 404));
    quint16 nobody = 0;
    {
        QTcpServer gone;
        ASSERT_TRUE(gone.listen(QHostAddress::LocalHost));
        nobody = gone.serverPort();
    }
    for (const QUrl& address :
         {stranger.address(), other.address(), QUrl(QStringLiteral("wss://") + website.host() + u'/'),
          QUrl(QStringLiteral("wss://localhost:%1/").arg(nobody)), QUrl(QStringLiteral("wss://")), QUrl()}) {
        told.clear();
        socket.open(address, opening);
        waitFor("closed 0 0");
        drainEvents();
        EXPECT_EQ(told, QStringList{"closed 0 0"}) << address.toString().toStdString();
    }
    EXPECT_TRUE(stranger.frames.isEmpty() && other.frames.isEmpty());
}

TEST_F(MiraVoiceSocketTest, NothingIsHeardOfALineThatIsLeftAndTheNextOneIsAnotherOne)
{
    QObject::connect(&socket, &MiraVoiceSocket::received, &socket, [this] { socket.abort(); });
    open();
    for (int i = 0; i < 50; ++i)
        service.say(R"({"type": "chat", "text": "first"})");
    waitFor("first");
    open();
    service.say(R"({"type": "chat", "text": "second"})");
    waitFor("second");
    waitUntil([this] { return service.ends.size() == 2; }, "both lines are closed");
    EXPECT_EQ(told, (QStringList{"opened", "first", "opened", "second"}));

    // One that is open when another is wanted.
    open();
    open();
    waitUntil([this] { return service.ends.size() == 3; }, "the line before is closed");
    EXPECT_TRUE(socket.isOpen());
    EXPECT_EQ(told.mid(4), (QStringList{"opened", "opened"}));
}

TEST_F(MiraVoiceSocketTest, ASilentLineEndsAndSoDoesOneThatLastsTooLong)
{
    MiraVoiceSocket silent(500ms, 1h);
    QStringList toldBySilent;
    listen(silent, toldBySilent);
    QElapsedTimer time;
    time.start();
    silent.open(service.address(), opening);
    waitUntil([&silent] { return silent.isOpen(); }, "the line is open");
    QTimer::singleShot(300ms, &silent, [this] { service.say(R"({"type": "ready"})"); });
    waitUntil([&] { return toldBySilent.contains("closed 0 1"); }, "the line ends");
    EXPECT_EQ(toldBySilent, (QStringList{"opened", "event 0", "closed 0 1"}));
    EXPECT_GE(time.elapsed(), 700); // a word is a word

    MiraVoiceSocket endless(1h, 200ms);
    QStringList toldByEndless;
    listen(endless, toldByEndless);
    endless.open(service.address(), opening);
    waitUntil([&] { return toldByEndless.contains("closed 0 1"); }, "the line ends");
    EXPECT_EQ(toldByEndless, dropped);
}

TEST_F(MiraVoiceSocketTest, SpeechThatTheNetworkDoesNotTakeIsNotKept)
{
    QSslServer server;
    server.setSslConfiguration(serverConfiguration(Credentials::Valid));
    ASSERT_TRUE(server.listen(QHostAddress::LocalHost));
    socket.open(QUrl(QStringLiteral("wss://localhost:%1/").arg(server.serverPort())), opening);
    waitUntil([&server] { return server.hasPendingConnections(); }, "somebody calls");
    QTcpSocket* const connection = server.nextPendingConnection();
    connection->setReadBufferSize(4096); // more it does not take
    waitUntil([connection] { return connection->peek(4096).endsWith("\r\n\r\n"); }, "a line is asked for");
    const QByteArray request = connection->readAll();
    const QByteArray name = "Sec-WebSocket-Key: ";
    const qsizetype key = request.indexOf(name) + name.size();
    connection->write(handshake(request.mid(key, request.indexOf('\r', key) - key)));
    waitFor("opened");

    for (int round = 1; round <= 100; ++round) { // of 0.8 s, eight megabytes in all
        for (int i = 0; i < 20; ++i)
            socket.sendAudio(std::vector<float>(voiceFormat::chunkSamples));
        // The line reads this when it has seen to them.
        connection->write("\x81\x1c{\"type\":\"chat\",\"text\":\"yes\"}");
        waitUntil([this, round] { return told.count(QStringLiteral("yes")) == round; }, "the line answers");
    }
    socket.hangUp();
    connection->setReadBufferSize(0);
    qsizetype taken = 0;
    waitUntil(
        [connection, &taken] {
            taken += connection->readAll().size();
            return connection->state() == QAbstractSocket::UnconnectedState;
        },
        "the line is closed");
    const qsizetype chunks = taken / MiraVoiceFrames::audio(std::vector<float>(voiceFormat::chunkSamples)).size();
    EXPECT_GE(chunks, 25);
    EXPECT_LT(chunks, 150);
}

TEST_F(MiraVoiceSocketTest, WhoGoesSaysGoodbyeAndWaitsForNobody)
{
    auto leaving = std::make_unique<MiraVoiceSocket>();
    leaving->open(service.address(), opening);
    waitUntil([&leaving] { return leaving->isOpen(); }, "the line is open");
    leaving->hangUp();
    leaving.reset();
    waitUntil([this] { return !service.ends.isEmpty(); }, "the line is closed");
    EXPECT_EQ(service.frames.last(), R"({"type":"hangup"})");
    EXPECT_EQ(service.ends, QList<int>{1000});

    QTcpServer mute; // never answers
    ASSERT_TRUE(mute.listen(QHostAddress::LocalHost));
    auto waiting = std::make_unique<MiraVoiceSocket>();
    waiting->open(QUrl(QStringLiteral("wss://localhost:%1/").arg(mute.serverPort())), opening);
    waitUntil([&mute] { return mute.hasPendingConnections(); }, "somebody calls");
    QElapsedTimer time;
    time.start();
    waiting.reset();
    EXPECT_LT(time.elapsed(), 2000);
}
