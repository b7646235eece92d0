#pragma once

#include <QJsonObject>
#include <QWebSocketProtocol>
#include <QWebSocketServer>

#include <memory>
#include <optional>
#include <vector>

namespace loom
{

/// A call as the service sees it: a web socket and what came over it.
class VoiceCall
{
public:
    explicit VoiceCall(QWebSocket* socket);
    VoiceCall(const VoiceCall&) = delete;
    VoiceCall& operator=(const VoiceCall&) = delete;
    ~VoiceCall();

    /// Of the request, such as "/api/support/widget/voice/rt".
    [[nodiscard]] QString path() const;
    /// Every frame that came, in order; one that is no JSON object fails the test.
    [[nodiscard]] const std::vector<QJsonObject>& frames() const { return m_frames; }
    /// Those of a type, such as "audio".
    [[nodiscard]] std::vector<QJsonObject> frames(const char* type) const;
    /// Turns the event loop until so many frames have come, the opening among them.
    void waitForFrames(std::size_t count) const;
    /// The reason with which the other side, or this one, closed it; none while it is open.
    [[nodiscard]] std::optional<QWebSocketProtocol::CloseCode> closed() const { return m_closed; }
    void waitUntilClosed() const;

    void say(const QJsonObject& event);
    /// {"type": `type`}
    void say(const char* type) { say(QJsonObject{{QStringLiteral("type"), QLatin1String(type)}}); }
    /// Whatever it means.
    void sendText(const QString& frame);
    void sendBytes(const QByteArray& frame);
    void close(QWebSocketProtocol::CloseCode code = QWebSocketProtocol::CloseCodeNormal);
    /// The connection ends without a word.
    void drop();

private:
    std::unique_ptr<QWebSocket> m_socket;
    std::vector<QJsonObject> m_frames;
    std::optional<QWebSocketProtocol::CloseCode> m_closed;
};

/// The voice service over TLS in this process, on a port of its own. Main thread.
class VoiceServer
{
public:
    VoiceServer();

    /// "https://localhost:<port>"
    [[nodiscard]] QString base() const;
    /// Calls that came, the first first.
    [[nodiscard]] const std::vector<std::unique_ptr<VoiceCall>>& calls() const { return m_calls; }
    /// The call of this number, from 1, once its opening has come.
    [[nodiscard]] VoiceCall& waitForCall(std::size_t number = 1) const;

private:
    QWebSocketServer m_listener;
    std::vector<std::unique_ptr<VoiceCall>> m_calls;
};

} // namespace loom
