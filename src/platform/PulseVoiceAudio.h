#pragma once

#include "net/Work.h"
#include "platform/PulseLoop.h"
#include "stylist/voice/VoiceAudio.h"

#include <chrono>
#include <memory>

namespace loom
{

class Clock;
class PulseConnection;
class PulseStreams;

/// Microphones and loudspeakers by the sound server (PulseAudio, or PipeWire in its place). Nothing is asked of the
/// server before devices are wanted. Main thread; never waits for the server.
///
/// What was opened keeps its rates: when a stream moves to another device the server converts, and streamsChanged()
/// tells of what else is different there.
class PulseVoiceAudio final : public VoiceAudio
{
    Q_OBJECT

public:
    /// A microphone that does not start within so long does not start at all,
    static constexpr std::chrono::milliseconds openingPatience{5000};
    /// and so long a flow goes on without one: plugs are pulled to be put in elsewhere.
    static constexpr std::chrono::milliseconds flowingPatience{2000};

    PulseVoiceAudio(Clock& clock, QString applicationID, QObject* parent = nullptr);
    ~PulseVoiceAudio() override;

    /// Always given: no desktop asks the shopper by a call of its own. Who may not listen is refused when opening.
    [[nodiscard]] QCoro::Task<bool> requestAccess(std::stop_token stop) override;
    [[nodiscard]] QCoro::Task<Opened> open(Choice choice, VoiceFlow& flow, std::stop_token stop) override;
    void close() override;
    void dropRendered() override;
    [[nodiscard]] std::vector<VoiceDevice> microphones() const override;
    [[nodiscard]] std::vector<VoiceDevice> speakers() const override;
    void watchDevices(bool isWatching) override;

private:
    class Answer;

    void connectIfNeeded();
    void followDevices();
    [[nodiscard]] bool isConnected() const;
    /// Does what is due, whatever has happened.
    void advance();
    void announce();
    void end(VoiceFailure failure);
    [[nodiscard]] QCoro::Task<> loseHope(std::chrono::milliseconds patience);

    Clock& m_clock;
    QString m_applicationID;
    int m_watchers = 0;
    PulseLoop m_loop; ///< first: what follows runs on it
    std::unique_ptr<PulseConnection> m_connection;
    std::unique_ptr<PulseStreams> m_streams; ///< of who opened devices; changed under the lock of the loop
    std::shared_ptr<Answer> m_answer;        ///< to who opened them
    VoiceStreams m_announced;
    std::pair<quint32, quint32> m_announcedPlaces;
    Work m_waiting; ///< for a microphone
};

} // namespace loom
