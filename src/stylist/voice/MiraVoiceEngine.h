#pragma once

#include "stylist/voice/EchoCanceller.h"
#include "stylist/voice/EchoDelay.h"
#include "stylist/voice/EchoReference.h"
#include "stylist/voice/MiraVoiceResampler.h"
#include "stylist/voice/SampleRing.h"
#include "stylist/voice/SpeechChunks.h"
#include "stylist/voice/SpeechQueue.h"
#include "stylist/voice/VoiceActivityDetector.h"
#include "stylist/voice/VoiceAudio.h"

#include <array>
#include <atomic>
#include <memory>
#include <mutex>
#include <optional>
#include <stop_token>
#include <vector>

namespace loom
{

/// What is done with the sound of a call, step by step. Three threads meet here: the sound server's calls the flow,
/// which moves samples through rings; one that is this object's steps; the main thread says what is wanted. What the
/// steps tell is told on the thread that steps. Time is counted in samples: no clock is read.
class MiraVoiceEngine final : public VoiceFlow
{
public:
    /// On the thread that steps.
    struct Listener {
        std::function<void(std::vector<float> samples)> send;
        std::function<void(bool isInterruption)> speechBegan;
        std::function<void()> speechEnded;
        std::function<void()> playbackBegan;
        std::function<void(quint64 played)> playbackEnded; ///< how many of play() are behind it
        std::function<void()> fellSilent;                  ///< nothing has been captured for `longestSilence`
    };
    static constexpr std::chrono::milliseconds longestSilence{5000};

    MiraVoiceEngine(VoiceAudio& devices, Listener listener);
    ~MiraVoiceEngine() override;

    // The main thread's.
    /// The streams that flow from here on, and what takes the echo out of them, if anything is to.
    void setStreams(const VoiceStreams& streams, std::unique_ptr<EchoCanceller> canceller);
    void setSending(bool isSending);
    void setMuted(bool isMuted);
    void play(std::vector<float> samples);
    void endOfSpeech();
    void interrupt();
    /// After an interruption was told of: what is played from here on belongs to another turn.
    void acceptSpeech();

    // Any thread's.
    [[nodiscard]] double microphoneLevel() const { return m_microphoneLevel.load(std::memory_order_relaxed); }
    [[nodiscard]] double playedLevel() const { return m_playedLevel.load(std::memory_order_relaxed); }

    // The sound server's.
    void captured(std::span<const float> samples) override;
    void render(std::span<float> samples, double delay) override;

    // The stepping thread's.
    /// Steps whenever something flowed or was wanted, until stopped.
    void run(const std::stop_token& stop);
    /// All there is to do now.
    void step();

private:
    struct Change {
        VoiceStreams streams;
        std::unique_ptr<EchoCanceller> canceller;
    };
    /// What the main thread wants, until the next step.
    struct Wishes {
        std::optional<Change> change;
        bool isInterrupted = false;
        std::optional<bool> isSending;
        std::vector<std::vector<float>> speech; ///< an empty one is the end of an utterance
    };
    struct Converters {
        explicit Converters(const VoiceStreams& streams);

        MiraVoiceResampler captured;
        MiraVoiceResampler rendered; ///< what was, for the canceller
        MiraVoiceResampler render;   ///< what is to be
    };

    void wake() const;
    void takeWishes();
    void change(Change change);
    void takeRendered();
    void takeCaptured();
    void align();
    void hear();
    void cancelEcho(std::int64_t shown, bool isPlaying);
    void follow(bool isSpeech);
    void ignore();
    [[nodiscard]] bool isAudible() const { return m_isSounding || !m_queue.isIdle(); }
    void silence();
    void fill();
    void fillNothing();
    void sound();
    void followPlayback();
    void watch(std::size_t samples);

    VoiceAudio& m_devices;
    Listener m_listener;
    int m_wakeUp = -1; ///< an eventfd

    // Between the sound server and the steps.
    SampleRing m_captured;
    SampleRing m_toRender;
    SampleRing m_rendered;                          ///< all that was, silence too
    std::atomic<std::uint64_t> m_abandoned = 0;     ///< what was written to m_toRender before is not to be rendered
    std::atomic<std::uint64_t> m_renderBegin = 0;   ///< the place in m_rendered where the last request began,
    std::atomic<float> m_renderDelay = 0;           ///< and when that sample is heard
    std::atomic<std::uint32_t> m_renderRequest = 0; ///< its length

    // Between the main thread and the steps.
    std::mutex m_mutex;
    Wishes m_wishes;
    quint64 m_given = 0; ///< to play()
    std::atomic<bool> m_isMuted = false;
    std::atomic<float> m_microphoneLevel = 0;
    std::atomic<float> m_playedLevel = 0;
    std::atomic<bool> m_isHushed = false; ///< interrupted, and the main thread does not know yet

    // The steps' own.
    VoiceStreams m_streams;
    std::optional<Converters> m_converters; ///< none before there are streams
    std::unique_ptr<EchoCanceller> m_canceller;
    EchoReference m_reference;
    EchoDelay m_delay;
    VoiceActivityDetector m_detector;
    SpeechChunks m_chunks;
    SpeechQueue m_queue;
    std::vector<float> m_scratch;
    std::array<float, voiceFormat::frameSamples> m_frame{}; ///< being filled
    std::size_t m_frameFilled = 0;
    std::int64_t m_position = 0; ///< of m_frame in what was heard since the streams began
    std::array<float, voiceFormat::frameSamples> m_played{};
    float m_heldLevel = 0;             ///< of what was played, while the room still rings with it
    float m_heldEcho = 0;              ///< likewise of what was heard, before the echo was taken out
    float m_trust = 0;                 ///< how often the canceller took out what was played
    std::uint64_t m_renderedBegin = 0; ///< the place in m_rendered where the streams began
    double m_request = 0;              ///< what the loudspeaker asks for at once, lately
    bool m_isSending = false;
    bool m_isTalking = false;
    bool m_isSounding = false;    ///< something of an utterance was given to the loudspeaker, not all is heard
    std::uint64_t m_soundEnd = 0; ///< its end in m_toRender
    std::optional<std::uint64_t> m_heardEnd; ///< the place in m_rendered at which its end has been heard
    quint64 m_taken = 0;                     ///< of m_given
    std::size_t m_silentFor = 0;
    bool m_hasFallenSilent = false;
};

} // namespace loom
