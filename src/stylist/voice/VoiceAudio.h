#pragma once

#include <QObject>
#include <QString>
#include <qcoro/qcorotask.h>

#include <optional>
#include <span>
#include <stop_token>
#include <vector>

namespace loom
{

/// Why no sound comes in.
enum class VoiceFailure {
    AccessRefused, ///< the desktop does not let this application listen
    NoMicrophone,  ///< none is connected, or it cannot be started
};

/// A microphone or a loudspeaker, as the desktop calls it.
struct VoiceDevice {
    QString id;               ///< opaque; the same one after a restart
    QString name;             ///< for shoppers
    bool cancelsEcho = false; ///< the desktop itself frees it from what the loudspeaker plays

    bool operator==(const VoiceDevice&) const = default;
};

/// What flows while devices are open. Called on the thread of the sound server, which must never wait: implementations
/// allocate nothing, lock nothing and return at once.
class VoiceFlow
{
public:
    VoiceFlow() = default;
    VoiceFlow(const VoiceFlow&) = delete;
    VoiceFlow& operator=(const VoiceFlow&) = delete;
    virtual ~VoiceFlow() = default;

    /// One channel, at the rate of the microphone.
    virtual void captured(std::span<const float> samples) = 0;
    /// To be filled: one channel, at the rate of the loudspeaker. `delay`: seconds until the first of them is heard.
    virtual void render(std::span<float> samples, double delay) = 0;
};

/// What was opened.
struct VoiceStreams {
    int captureRate = 0;       ///< samples a second
    int renderRate = 0;        ///< samples a second; 0 where there is nothing to play on
    bool cancelsEcho = false;  ///< the microphone's sound is free of what the loudspeaker plays
    double captureLatency = 0; ///< seconds from the air to captured(), as far as the server knows

    bool operator==(const VoiceStreams&) const = default;
};

/// Microphones and loudspeakers of the desktop. Main thread.
class VoiceAudio : public QObject
{
    Q_OBJECT

public:
    /// Devices by their id; an empty one is the desktop's default, as is one that is not there.
    struct Choice {
        QString microphone;
        QString speaker;
        bool wantsSpeaker = true; ///< or only the microphone, to measure it

        bool operator==(const Choice&) const = default;
    };
    /// What came of opening: streams, or why there are none.
    struct Opened {
        std::optional<VoiceStreams> streams;
        VoiceFailure failure = VoiceFailure::NoMicrophone; ///< where there are none
    };

    using QObject::QObject;

    /// May ask the shopper.
    [[nodiscard]] virtual QCoro::Task<bool> requestAccess(std::stop_token stop) = 0;
    /// Opens devices; those that are open are closed first. Where the default microphone is wanted and the desktop has
    /// one that is free of echo, that one is taken. `flow` must live until close() has returned. When a device goes,
    /// the flow continues on the default one.
    [[nodiscard]] virtual QCoro::Task<Opened> open(Choice choice, VoiceFlow& flow, std::stop_token stop) = 0;
    /// When it returns nobody is in the flow any more.
    virtual void close() = 0;
    /// Throws away what was rendered and not yet heard. Any thread.
    virtual void dropRendered() = 0;
    [[nodiscard]] virtual std::vector<VoiceDevice> microphones() const = 0;
    [[nodiscard]] virtual std::vector<VoiceDevice> speakers() const = 0;
    /// Keeps the lists of devices up to date while somebody looks at them; counted.
    virtual void watchDevices(bool isWatching) = 0;

Q_SIGNALS:
    void devicesChanged();
    /// The open streams now run at other rates or on other devices: those before are no longer valid.
    void streamsChanged(const loom::VoiceStreams& streams);
    /// The open streams have ended, and nothing could take their place.
    void failed(loom::VoiceFailure failure);
};

} // namespace loom
