#pragma once

#include "net/Work.h"
#include "stylist/voice/EchoCanceller.h"
#include "stylist/voice/VoiceAudio.h"

#include <QObject>
#include <qcoro/qcorotask.h>

#include <functional>
#include <memory>
#include <thread>
#include <vector>

namespace loom
{

class MiraVoiceEngine;

/// The sound of a call: captures the microphone and plays Mira's speech. The sound server's thread only moves samples
/// in and out of rings; a thread of this object converts, takes the echo out, looks for speech, and cuts what is to be
/// sent into chunks. Its signals come on the main thread. Main thread.
class MiraVoiceAudio final : public QObject
{
    Q_OBJECT

public:
    /// Called on the audio thread, with voiceFormat::chunkSamples samples in the format of the call. Only while the
    /// shopper speaks, with what came just before.
    using Sender = std::function<void(std::vector<float> samples)>;

    MiraVoiceAudio(VoiceAudio& devices, Sender send, EchoCanceller::Maker makeEchoCanceller = EchoCanceller::make,
                   QObject* parent = nullptr);
    ~MiraVoiceAudio() override;

    /// Opens the devices, with echo cancellation if it can be had. Nothing is sent before setSending(true). Answers
    /// with why it failed, or nothing.
    [[nodiscard]] QCoro::Task<std::optional<VoiceFailure>> start(VoiceAudio::Choice choice, std::stop_token stop);
    /// Closes the devices; what is not played yet is thrown away.
    void stop();
    [[nodiscard]] bool isRunning() const;
    /// The echo of Mira's speech is taken out, here or by the desktop.
    [[nodiscard]] bool cancelsEcho() const;
    /// The line is open: speech is sent from here on.
    void setSending(bool isSending);
    /// What the microphone hears is thrown away at once.
    void setMuted(bool isMuted);

    /// Speech of Mira's, in the format of the call, to be played after what was given before.
    void play(std::vector<float> samples);
    /// She has said all of this turn: what is there is played to its end, however little it is.
    void endOfSpeech();
    /// Silence, at once: what is not played yet is thrown away.
    void interrupt();
    /// Speech is waiting or being played.
    [[nodiscard]] bool isPlaying() const;
    /// How loud, from 0 to 1, on a scale as ears have it; for showing.
    [[nodiscard]] double microphoneLevel() const;
    [[nodiscard]] double playedLevel() const;

Q_SIGNALS:
    /// The shopper began to speak, or has ended; not while muted. Mira's speech has already been silenced when it
    /// began while she spoke: `isInterruption`.
    void speechBegan(bool isInterruption);
    void speechEnded();
    void playbackBegan();
    /// All that was given is played.
    void playbackEnded();
    /// No sound comes in any more.
    void failed(loom::VoiceFailure failure);

private:
    [[nodiscard]] std::unique_ptr<MiraVoiceEngine> makeEngine();
    [[nodiscard]] std::unique_ptr<EchoCanceller> makeCanceller(const VoiceStreams& streams);
    /// Has the main thread do it, unless that call has ended by then. Any thread.
    void tell(quint64 call, std::function<void()> what);
    void fail(VoiceFailure failure);

    VoiceAudio& m_devices;
    Sender m_send;
    EchoCanceller::Maker m_makeEchoCanceller;
    Work m_starting;
    std::unique_ptr<MiraVoiceEngine> m_engine; ///< while devices are open or opening
    std::jthread m_thread;                     ///< steps the engine; runs once devices are open
    quint64 m_call = 0;                        ///< what the thread tells of an earlier one is dropped
    quint64 m_given = 0;                       ///< to play()
    bool m_isPlaying = false;
    bool m_isMuted = false;
    bool m_cancelsEcho = false;
    bool m_hasWarned = false; ///< that no canceller can be had
};

} // namespace loom
