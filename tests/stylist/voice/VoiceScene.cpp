#include "VoiceScene.h"

#include "support/Running.h"

#include <algorithm>
#include <cmath>

namespace loom
{

VoiceScene::VoiceScene(const Devices& devices, std::unique_ptr<EchoCanceller> canceller)
    : engine(audio, {.send =
                         [this](std::vector<float> samples) {
                             sent.push_back(std::move(samples));
                             sentAt.push_back(now);
                         },
                     .speechBegan = [this](bool isInterruption) { tell(isInterruption ? "interrupts" : "speaks"); },
                     .speechEnded = [this] { tell("pauses"); },
                     .playbackBegan = [this] { tell("Mira speaks"); },
                     .playbackEnded = [this](quint64 played) { tell("Mira ends " + std::to_string(played)); },
                     .fellSilent =
                         [this] {
                             tell("silence");
                         }})
    , m_fragment(devices.fragment)
    , m_room(devices.roomDelay, 0.12, devices.loudness, devices.renderRate)
    , m_echoToMicrophone(devices.renderRate, devices.captureRate)
    , m_wordsToMicrophone(voiceFormat::sampleRate, devices.captureRate)
{
    audio.streams = {
        .captureRate = devices.captureRate, .renderRate = devices.renderRate, .captureLatency = devices.fragment};
    audio.speakerDelay = devices.speakerDelay;
    audio.speakerDelayError = devices.speakerDelayError;
    run(audio.open({}, engine, {}));
    engine.setStreams(*audio.streams, std::move(canceller));
    engine.setSending(true);
}

void VoiceScene::live(Sounds::Samples said)
{
    Sounds::mix(said, Sounds::hiss(static_cast<double>(said.size()) / voiceFormat::sampleRate, -66));
    const auto fragment = static_cast<std::size_t>(m_fragment * voiceFormat::sampleRate);
    for (std::size_t at = 0; at + fragment <= said.size(); at += fragment) {
        const auto words = m_wordsToMicrophone.convert(std::span(said).subspan(at, fragment));
        m_words.insert(m_words.end(), words.begin(), words.end());
        const auto end =
            m_words.begin() + static_cast<std::ptrdiff_t>(std::min(m_words.size(), audio.captured(m_fragment)));
        Sounds::Samples heard(m_words.begin(), end);
        m_words.erase(m_words.begin(), end);
        const auto echo = m_echoToMicrophone.convert(m_echo);
        for (std::size_t i = 0; i < std::min(echo.size(), heard.size()); ++i)
            heard[i] += echo[i];
        now += m_fragment;
        audio.capture(heard);
        captured.insert(captured.end(), heard.begin(), heard.end());
        engine.step();
        const Sounds::Samples played = audio.render(audio.rendered(m_fragment));
        m_echo = m_room.hear(played);
        if (std::ranges::any_of(played, [](float sample) { return std::abs(sample) > 0.002F; }))
            lastHeard = now;
        engine.step();
    }
}

std::vector<std::string> VoiceScene::told() const
{
    std::vector<std::string> words;
    words.reserve(events.size());
    for (const auto& [when, what] : events)
        words.push_back(what);
    return words;
}

} // namespace loom
