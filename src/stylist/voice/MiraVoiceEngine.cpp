#include "stylist/voice/MiraVoiceEngine.h"

#include "stylist/voice/Loudness.h"

#include <poll.h>
#include <sys/eventfd.h>
#include <unistd.h>

#include <algorithm>
#include <cmath>
#include <utility>

namespace loom
{

namespace
{

constexpr std::size_t batch = 2048;     ///< samples that are converted at once
constexpr std::size_t ringSize = 65536; ///< more than a second of the rates that are common
// A canceller that lately left little of the echo in most frames is trusted: the rest is the shopper.
constexpr float trusted = 0.6F;
constexpr float trustStep = 0.02F;
constexpr float silentTrustStep = 0.004F; ///< who wears headphones has no echo, but every speech has its pauses
constexpr float littleLeft = 0.25F;       ///< as a ratio of levels
constexpr float hardlyAnyEcho = 4;        ///< likewise, over the noise floor
constexpr float inaudible = 0.001F;
constexpr double longestDelay = 2; ///< seconds: a server that says more is wrong, and nobody waits for it
constexpr float ringing = 0.93F;   ///< what a frame leaves of a sound in a room: 20 dB in 300 ms

int rateOr(int rate)
{
    return rate > 0 ? rate : voiceFormat::sampleRate;
}

/// Falls slowly, so that a meter can be read.
float shownLevel(float level, float before)
{
    return std::max(shownLoudness(level), 0.9F * before);
}

} // namespace

MiraVoiceEngine::Converters::Converters(const VoiceStreams& streams)
    : captured(rateOr(streams.captureRate), voiceFormat::sampleRate, batch)
    , rendered(rateOr(streams.renderRate), voiceFormat::sampleRate, batch)
    , render(voiceFormat::sampleRate, rateOr(streams.renderRate), voiceFormat::frameSamples)
{
}

MiraVoiceEngine::MiraVoiceEngine(VoiceAudio& devices, Listener listener)
    : m_devices(devices)
    , m_listener(std::move(listener))
    , m_wakeUp(eventfd(0, EFD_CLOEXEC | EFD_NONBLOCK))
    , m_captured(ringSize)
    , m_toRender(ringSize)
    , m_rendered(ringSize)
    , m_scratch(batch)
{
}

MiraVoiceEngine::~MiraVoiceEngine()
{
    close(m_wakeUp);
}

void MiraVoiceEngine::setStreams(const VoiceStreams& streams, std::unique_ptr<EchoCanceller> canceller)
{
    {
        const std::scoped_lock lock(m_mutex);
        m_wishes.change = {.streams = streams, .canceller = std::move(canceller)};
    }
    wake();
}

void MiraVoiceEngine::setSending(bool isSending)
{
    {
        const std::scoped_lock lock(m_mutex);
        m_wishes.isSending = isSending;
    }
    wake();
}

void MiraVoiceEngine::setMuted(bool isMuted)
{
    m_isMuted = isMuted;
    if (isMuted)
        m_microphoneLevel = 0;
}

void MiraVoiceEngine::play(std::vector<float> samples)
{
    {
        const std::scoped_lock lock(m_mutex);
        if (!samples.empty())
            ++m_given;
        m_wishes.speech.push_back(std::move(samples));
    }
    wake();
}

void MiraVoiceEngine::endOfSpeech()
{
    play({});
}

void MiraVoiceEngine::interrupt()
{
    {
        const std::scoped_lock lock(m_mutex);
        m_wishes.speech.clear();
        m_wishes.isInterrupted = true;
    }
    wake();
}

void MiraVoiceEngine::acceptSpeech()
{
    const std::scoped_lock lock(m_mutex);
    m_wishes.speech.clear();
    m_isHushed = false;
}

void MiraVoiceEngine::captured(std::span<const float> samples)
{
    m_captured.push(samples);
    wake();
}

void MiraVoiceEngine::render(std::span<float> samples, double delay)
{
    m_renderBegin = m_rendered.written();
    m_renderDelay = delay > 0 ? static_cast<float>(std::min(delay, longestDelay)) : 0;
    m_renderRequest = static_cast<std::uint32_t>(samples.size());
    m_toRender.skipTo(m_abandoned);
    const std::size_t filled = m_toRender.pop(samples);
    std::ranges::fill(samples.subspan(filled), 0.0F);
    m_rendered.push(samples);
    wake();
}

void MiraVoiceEngine::wake() const
{
    // Fails only where it is awake four billion times over.
    const std::uint64_t once = 1;
    [[maybe_unused]] const auto written = write(m_wakeUp, &once, sizeof once);
}

void MiraVoiceEngine::run(const std::stop_token& stop)
{
    const std::stop_callback wakeToStop(stop, [this] { wake(); });
    while (!stop.stop_requested()) {
        pollfd wait{.fd = m_wakeUp, .events = POLLIN, .revents = 0};
        const int ready = poll(&wait, 1, static_cast<int>(longestSilence.count()));
        std::uint64_t times = 0;
        [[maybe_unused]] const auto taken = read(m_wakeUp, &times, sizeof times);
        if (stop.stop_requested())
            return;
        if (ready == 0)
            watch(longestSilence / voiceFormat::frame * voiceFormat::frameSamples);
        step();
    }
}

void MiraVoiceEngine::step()
{
    takeWishes();
    if (!m_converters)
        return;
    takeRendered();
    takeCaptured();
    fill();
    followPlayback();
}

void MiraVoiceEngine::takeWishes()
{
    Wishes wishes;
    {
        const std::scoped_lock lock(m_mutex);
        wishes = std::exchange(m_wishes, {});
        m_taken = m_given;
        if (m_isHushed)
            wishes.speech.clear();
    }
    if (wishes.change)
        change(std::move(*wishes.change));
    if (wishes.isInterrupted)
        silence();
    if (wishes.isSending) {
        m_isSending = *wishes.isSending;
        m_chunks.clear();
    }
    for (std::vector<float>& samples : wishes.speech) {
        if (samples.empty())
            m_queue.end();
        else
            m_queue.add(std::move(samples));
    }
}

void MiraVoiceEngine::change(Change change)
{
    m_streams = change.streams;
    m_streams.captureLatency = m_streams.captureLatency > 0 ? m_streams.captureLatency : 0;
    m_canceller = std::move(change.canceller);
    m_converters.emplace(m_streams);
    // What is on its way came from, or is meant for, streams that are no more.
    m_captured.skipTo(m_captured.written());
    m_rendered.skipTo(m_rendered.written());
    m_abandoned = m_toRender.written();
    m_renderedBegin = m_rendered.taken();
    m_renderBegin = m_renderedBegin;
    m_heardEnd.reset();
    m_reference.reset();
    m_delay.reset();
    m_frameFilled = 0;
    m_position = 0;
    m_trust = 0;
    m_request = 0;
    m_silentFor = 0;
    m_hasFallenSilent = false;
}

void MiraVoiceEngine::takeRendered()
{
    if (m_streams.renderRate == 0)
        return;
    // No more than is there now: who is late must get to the rest of the step.
    std::size_t left = m_rendered.size();
    while (left > 0) {
        const auto samples =
            std::span(m_scratch).first(m_rendered.pop(std::span(m_scratch).first(std::min(left, batch))));
        left -= samples.size();
        const auto played = m_converters->rendered.convert(samples);
        m_reference.add(played);
        m_delay.played(played);
        // From here on: nobody knows for certain when it is in the air.
        if (!played.empty())
            m_heldLevel = std::max(m_heldLevel, rootMeanSquare(played));
        m_queue.pass(played.size());
        watch(played.size());
    }
}

void MiraVoiceEngine::takeCaptured()
{
    std::size_t left = m_captured.size();
    while (left > 0) {
        m_silentFor = 0;
        const auto samples =
            std::span(m_scratch).first(m_captured.pop(std::span(m_scratch).first(std::min(left, batch))));
        left -= samples.size();
        for (float& sample : samples) // a canceller never forgets what is no number
            sample = std::isfinite(sample) ? std::clamp(sample, -1.0F, 1.0F) : 0;
        auto heard = m_converters->captured.convert(samples);
        while (!heard.empty()) {
            const auto part = heard.first(std::min(heard.size(), m_frame.size() - m_frameFilled));
            std::ranges::copy(part, m_frame.begin() + static_cast<std::ptrdiff_t>(m_frameFilled));
            m_frameFilled += part.size();
            heard = heard.subspan(part.size());
            if (m_frameFilled < m_frame.size())
                continue;
            hear();
            m_frameFilled = 0;
            m_position += voiceFormat::frameSamples;
        }
    }
}

/// Works out what of the rendered sound is in the air when the microphone hears what.
void MiraVoiceEngine::align()
{
    const double heardRate = static_cast<double>(voiceFormat::sampleRate) / rateOr(m_streams.captureRate);
    const double playedRate = static_cast<double>(voiceFormat::sampleRate) / rateOr(m_streams.renderRate);
    const double newestHeard = static_cast<double>(m_position) + voiceFormat::frameSamples +
                               static_cast<double>(m_captured.size()) * heardRate;
    // The last request came at some time since the one before: on average half of it has been played since.
    const double request = static_cast<double>(m_renderBegin.load() - m_renderedBegin) + 0.5 * m_renderRequest.load();
    const double delay = m_renderDelay.load() + m_streams.captureLatency;
    m_reference.align(request * playedRate - delay * voiceFormat::sampleRate - newestHeard);
}

void MiraVoiceEngine::hear()
{
    if (m_streams.renderRate == 0)
        fillNothing();
    std::int64_t shown = 0;
    if (m_reference.end() > 0) {
        align();
        shown = m_reference.read(m_position, m_played);
    } else {
        m_played.fill(0);
    }
    const float played = rootMeanSquare(m_played);
    m_heldLevel = std::max(played, ringing * m_heldLevel);
    m_playedLevel = shownLevel(played, m_playedLevel);
    if (m_isMuted) {
        ignore();
        return;
    }

    const bool isPlaying = m_heldLevel > inaudible;
    if (m_canceller)
        cancelEcho(shown, isPlaying);
    const bool isEchoFree = m_streams.cancelsEcho || (m_canceller && m_trust > trusted);
    const bool isSpeech = m_detector.look(m_frame, {.isPlaying = isPlaying,
                                                    .isEchoFree = isEchoFree,
                                                    .playedLevel = m_heldLevel,
                                                    .heardLevel = m_canceller ? m_heldEcho : 0});
    m_microphoneLevel = shownLevel(m_detector.level(), m_microphoneLevel);
    follow(isSpeech && m_isSending);
}

/// `shown`: the place of m_played in what was played.
void MiraVoiceEngine::cancelEcho(std::int64_t shown, bool isPlaying)
{
    const float before = rootMeanSquare(m_frame);
    m_heldEcho = std::max(before, ringing * m_heldEcho);
    m_canceller->played(m_played);
    m_canceller->heard(m_frame, static_cast<int>(EchoReference::lead.count()));
    if (const int error = m_delay.heard(before, shown); error != 0) {
        m_reference.correct(error);
        m_trust = 0;
    }
    if (!isPlaying)
        return;
    const bool isTakenOut = rootMeanSquare(m_frame) < littleLeft * before;
    const bool isSilent = before < hardlyAnyEcho * m_detector.noiseFloor();
    const float proof = isTakenOut || isSilent ? 1 : 0;
    m_trust += (isSilent ? silentTrustStep : trustStep) * (proof - m_trust);
}

void MiraVoiceEngine::follow(bool isSpeech)
{
    if (isSpeech && !m_isTalking) {
        const bool isInterruption = isAudible();
        if (isInterruption) {
            m_isHushed = true;
            silence();
        }
        m_listener.speechBegan(isInterruption);
    }
    m_chunks.add(m_frame, isSpeech, [this](std::vector<float> samples) {
        if (!m_isMuted)
            m_listener.send(std::move(samples));
    });
    if (std::exchange(m_isTalking, isSpeech) && !isSpeech)
        m_listener.speechEnded();
}

/// Muted: what was heard is not even looked at.
void MiraVoiceEngine::ignore()
{
    m_detector.reset();
    m_chunks.clear();
    m_microphoneLevel = 0;
    if (std::exchange(m_isTalking, false))
        m_listener.speechEnded();
}

void MiraVoiceEngine::silence()
{
    m_queue.clear();
    m_abandoned = m_toRender.written();
    m_isSounding = false;
    m_heardEnd.reset();
    m_devices.dropRendered();
    if (m_converters)
        m_converters->render.reset();
}

/// Keeps the loudspeaker's ring as full as what it asks for at once wants it.
void MiraVoiceEngine::fill()
{
    if (m_streams.renderRate == 0)
        return;
    const std::size_t frame = static_cast<std::size_t>(m_streams.renderRate) / 100;
    m_request = std::max(static_cast<double>(m_renderRequest.load()), 0.99 * m_request);
    const auto wanted = std::min(static_cast<std::size_t>(2 * m_request) + frame, m_toRender.capacity() / 2);
    const std::uint64_t abandoned = m_abandoned;
    std::array<float, voiceFormat::frameSamples> speech{};
    while (m_toRender.written() - std::max(m_toRender.taken(), abandoned) < std::max(wanted, 4 * frame) &&
           m_queue.read(speech)) {
        sound();
        m_toRender.push(m_converters->render.convert(speech));
        m_soundEnd = m_toRender.written();
    }
}

/// Without a loudspeaker her speech takes its time all the same.
void MiraVoiceEngine::fillNothing()
{
    m_queue.pass(voiceFormat::frameSamples);
    std::array<float, voiceFormat::frameSamples> speech{};
    if (m_queue.read(speech))
        sound();
}

void MiraVoiceEngine::sound()
{
    m_heardEnd.reset();
    if (!std::exchange(m_isSounding, true))
        m_listener.playbackBegan();
}

void MiraVoiceEngine::followPlayback()
{
    if (!m_isSounding || !m_queue.isIdle())
        return;
    if (m_streams.renderRate > 0) {
        if (m_toRender.taken() < m_soundEnd)
            return;
        if (!m_heardEnd)
            m_heardEnd = m_rendered.written() +
                         static_cast<std::uint64_t>(m_renderDelay.load() * static_cast<float>(m_streams.renderRate));
        if (m_rendered.written() < *m_heardEnd)
            return;
    }
    m_isSounding = false;
    m_heardEnd.reset();
    m_listener.playbackEnded(m_taken);
}

/// So much time has passed, and the microphone should have said something.
void MiraVoiceEngine::watch(std::size_t samples)
{
    m_silentFor += samples;
    constexpr std::size_t longest = longestSilence / voiceFormat::frame * voiceFormat::frameSamples;
    if (m_silentFor >= longest && !std::exchange(m_hasFallenSilent, true))
        m_listener.fellSilent();
}

} // namespace loom
