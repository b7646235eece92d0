#pragma once

#include "platform/PulseStream.h"

#include <memory>
#include <optional>

namespace loom
{

class PulseConnection;
struct PulseDevices;

/// The microphone and the loudspeaker of one flow, through all devices that come and go. Each keeps the rate that it
/// began with. Main thread, but for flush().
class PulseStreams final : public QObject
{
    Q_OBJECT

public:
    PulseStreams(PulseLoop& loop, VoiceAudio::Choice choice, VoiceFlow& flow);
    ~PulseStreams() override;

    /// Starts what can be started now, and puts away what has ended.
    void follow(const PulseConnection& connection);
    /// What failed is worth another attempt.
    void hopeAgain();
    /// It goes on without a loudspeaker.
    void giveUpSpeaker();
    /// Sound flows from here on, also in what is started later.
    void begin();
    [[nodiscard]] bool isFlowing() const { return m_isFlowing; }
    /// Throws away what was rendered and not played yet. Any thread.
    void flush();

    [[nodiscard]] bool isHeard() const;
    /// Nothing is being started any more, and there is a microphone.
    [[nodiscard]] bool isSettled() const;
    /// Why there is no microphone, when none is being started.
    [[nodiscard]] std::optional<VoiceFailure> failure() const;
    [[nodiscard]] VoiceStreams streams(const PulseDevices& devices) const;
    /// Which devices they are on; only to be compared.
    [[nodiscard]] std::pair<quint32, quint32> places() const;

Q_SIGNALS:
    void changed();
    void moved();

private:
    struct End {
        PulseStream::Direction direction;
        std::unique_ptr<PulseStream> stream; ///< changed under the lock of the loop
        int rate = 0;
        int failures = 0; ///< since it last ran
        int error = 0;    ///< of the last one
    };
    void lookAt(End& end);
    void put(End& end, std::unique_ptr<PulseStream> stream);
    void start(End& end, const PulseConnection& connection, const QString& device, int rate);

    PulseLoop& m_loop;
    VoiceAudio::Choice m_choice;
    VoiceFlow& m_flow;
    bool m_isFlowing = false;
    End m_microphone{.direction = PulseStream::Direction::Capture};
    End m_speaker{.direction = PulseStream::Direction::Render};
};

} // namespace loom
