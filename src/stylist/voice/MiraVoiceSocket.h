#pragma once

#include "stylist/voice/MiraVoiceEvent.h"
#include "stylist/voice/MiraVoiceOpening.h"

#include <QObject>
#include <QThread>
#include <QUrl>

#include <atomic>
#include <chrono>
#include <vector>

namespace loom
{

class MiraVoiceLine;

/// The line of a call: a web socket (RFC 6455) on a thread of its own, so that neither TLS nor the decoding of speech
/// waits for the window, nor the window for them. Its signals come on the main thread, in the order of the wire; none
/// comes after close(), abort() or its end. One line at a time; main thread, but for sendAudio().
class MiraVoiceSocket final : public QObject
{
    Q_OBJECT

public:
    /// Without a frame in either direction for so long the line counts as dropped,
    static constexpr std::chrono::seconds requestTimeout{600};
    /// and no call lasts longer.
    static constexpr std::chrono::seconds resourceTimeout{3600};
    /// A longer frame of the service ends the call.
    static constexpr quint64 longestFrame = 16ULL * 1024 * 1024; // bytes

    /// Who else wants the line within `idle` and `total`, mostly tests, says so.
    explicit MiraVoiceSocket(std::chrono::milliseconds idle = requestTimeout,
                             std::chrono::milliseconds total = resourceTimeout, QObject* parent = nullptr);
    ~MiraVoiceSocket() override;

    /// Sends the opening as soon as the socket is open. A line that is open is dropped without a word.
    void open(const QUrl& address, const MiraVoiceOpening& opening);
    [[nodiscard]] bool isOpen() const { return m_isOpen; }
    /// Any thread. Nothing happens while the socket is not open, nor while more than a second of speech waits for the
    /// network.
    void sendAudio(std::vector<float> samples);
    /// Sends the hang-up frame, then closes with the normal reason (1000).
    void hangUp();
    /// Drops the line without a word.
    void abort();

Q_SIGNALS:
    void opened();
    void received(const loom::MiraVoiceEvent& event);
    /// The socket is closed, and not by this side. `isNormal`: with the reason 1000. `wasOpen`: the opening was sent.
    void closed(bool isNormal, bool wasOpen);

private:
    void forget();

    QThread m_thread;      ///< runs from the first call on
    MiraVoiceLine* m_line; ///< lives in m_thread, and ends with it
    quint64 m_call = 0;    ///< what comes of another one is dropped
    std::atomic<bool> m_isOpen = false;
    std::atomic<int> m_waiting = 0; ///< chunks that the line has not yet taken
};

} // namespace loom
