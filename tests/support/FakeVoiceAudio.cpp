#include "support/FakeVoiceAudio.h"

#include <qcoro/qcorofuture.h>

#include <algorithm>
#include <cmath>

namespace loom
{

QCoro::Task<bool> FakeVoiceAudio::requestAccess(std::stop_token /*stop*/)
{
    co_return grantsAccess;
}

QCoro::Task<VoiceAudio::Opened> FakeVoiceAudio::open(Choice choice, VoiceFlow& flow, std::stop_token stop)
{
    openings.push_back(choice);
    m_flow = nullptr;
    if (holdsOpening) {
        const auto promise = m_opening = std::make_shared<QPromise<void>>();
        promise->start();
        const std::stop_callback cancel(stop, [promise] { promise->finish(); });
        co_await promise->future();
    }
    if (stop.stop_requested() || !streams)
        co_return Opened{.streams = {}, .failure = failure};
    VoiceStreams opened = *streams;
    if (!choice.wantsSpeaker)
        opened.renderRate = 0;
    m_flow = &flow;
    m_waiting.assign(rendered(speakerDelay), 0);
    co_return Opened{.streams = opened, .failure = failure};
}

void FakeVoiceAudio::finishOpening()
{
    m_opening->finish();
}

void FakeVoiceAudio::close()
{
    ++closings;
    m_flow = nullptr;
}

void FakeVoiceAudio::dropRendered()
{
    ++drops;
    const std::scoped_lock lock(m_mutex);
    std::ranges::fill(m_waiting, 0.0F);
}

void FakeVoiceAudio::capture(std::span<const float> samples)
{
    if (m_flow != nullptr)
        m_flow->captured(samples);
}

std::vector<float> FakeVoiceAudio::render(std::size_t count)
{
    std::vector<float> samples(count);
    if (m_flow != nullptr)
        m_flow->render(samples, speakerDelay + speakerDelayError);
    const std::scoped_lock lock(m_mutex);
    m_waiting.insert(m_waiting.end(), samples.begin(), samples.end());
    std::copy_n(m_waiting.begin(), count, samples.begin());
    m_waiting.erase(m_waiting.begin(), m_waiting.begin() + static_cast<std::ptrdiff_t>(count));
    return samples;
}

std::vector<float> FakeVoiceAudio::step(std::span<const float> microphone)
{
    capture(microphone);
    return streams && streams->renderRate > 0
               ? render(rendered(static_cast<double>(microphone.size()) / streams->captureRate))
               : std::vector<float>();
}

std::size_t FakeVoiceAudio::captured(double seconds) const
{
    return static_cast<std::size_t>(std::lround(seconds * streams->captureRate));
}

std::size_t FakeVoiceAudio::rendered(double seconds) const
{
    return static_cast<std::size_t>(std::lround(seconds * streams->renderRate));
}

void FakeVoiceAudio::change(const VoiceStreams& changed)
{
    streams = changed;
    {
        const std::scoped_lock lock(m_mutex);
        m_waiting.assign(rendered(speakerDelay), 0);
    }
    Q_EMIT streamsChanged(changed);
}

void FakeVoiceAudio::fail(VoiceFailure reason)
{
    m_flow = nullptr;
    Q_EMIT failed(reason);
}

} // namespace loom
