#pragma once

#include "stylist/voice/VoiceAudio.h"

#include <QFuture>
#include <QPromise>

#include <atomic>
#include <deque>
#include <memory>
#include <mutex>
#include <vector>

namespace loom
{

/// A desktop with a microphone and a loudspeaker whose time the test moves: nothing flows but what capture(), render()
/// and step() move. They play the sound server's thread and may be called on any, one at a time.
class FakeVoiceAudio final : public VoiceAudio
{
public:
    [[nodiscard]] QCoro::Task<bool> requestAccess(std::stop_token stop) override;
    [[nodiscard]] QCoro::Task<Opened> open(Choice choice, VoiceFlow& flow, std::stop_token stop) override;
    void close() override;
    void dropRendered() override;
    [[nodiscard]] std::vector<VoiceDevice> microphones() const override { return microphoneList; }
    [[nodiscard]] std::vector<VoiceDevice> speakers() const override { return speakerList; }
    void watchDevices(bool isWatching) override { watchers += isWatching ? 1 : -1; }

    [[nodiscard]] bool isOpen() const { return m_flow != nullptr; }
    /// Lets an open() that `holdsOpening` keeps waiting go on.
    void finishOpening();

    /// The microphone heard this; nothing happens while it is closed.
    void capture(std::span<const float> samples);
    /// The loudspeaker's buffer wants so many samples; what leaves it for the air meanwhile, `speakerDelay` after it
    /// was rendered.
    std::vector<float> render(std::size_t count);
    /// Both, for a stretch of time in which the microphone heard `microphone`.
    std::vector<float> step(std::span<const float> microphone);

    /// Samples of the microphone, or the loudspeaker, in so much time.
    [[nodiscard]] std::size_t captured(double seconds) const;
    [[nodiscard]] std::size_t rendered(double seconds) const;

    /// Goes over to other streams, as when a device is pulled out and there is another.
    void change(const VoiceStreams& changed);
    /// Ends the streams, as when it was the last one.
    void fail(VoiceFailure reason);

    // What the desktop is like.
    bool grantsAccess = true;
    bool holdsOpening = false;
    std::optional<VoiceStreams> streams =
        VoiceStreams{.captureRate = 48000, .renderRate = 48000, .cancelsEcho = false, .captureLatency = 0.01};
    VoiceFailure failure = VoiceFailure::NoMicrophone; ///< where it has no streams to offer
    double speakerDelay = 0.02;                        ///< seconds from render() into the air
    double speakerDelayError = 0;                      ///< seconds that it says more, or less
    std::vector<VoiceDevice> microphoneList;
    std::vector<VoiceDevice> speakerList;

    // What was asked of it.
    std::vector<Choice> openings;
    int closings = 0;
    int watchers = 0;
    std::atomic<int> drops = 0;

private:
    VoiceFlow* m_flow = nullptr;
    std::mutex m_mutex;          ///< over what is in the loudspeaker's buffer
    std::deque<float> m_waiting; ///< rendered, and not in the air yet
    std::shared_ptr<QPromise<void>> m_opening;
};

} // namespace loom
