#include "support/SoundRecorder.h"

#include <algorithm>
#include <cstring>

namespace loom
{

SoundRecorder::SoundRecorder(const SoundServer& server, const QString& speaker)
    : m_process(server.run(QStringLiteral("pacat"),
                           {QStringLiteral("--record"), QStringLiteral("--raw"), QStringLiteral("--format=float32le"),
                            QStringLiteral("--channels=1"), QStringLiteral("--rate=%1").arg(SoundServer::rate),
                            QStringLiteral("--latency-msec=20"),
                            QStringLiteral("--device=") + speaker + QStringLiteral(".monitor")}))
{
}

std::span<const float> SoundRecorder::samples()
{
    m_rest += m_process->readAllStandardOutput();
    const auto count = static_cast<std::size_t>(m_rest.size()) / sizeof(float);
    if (count == 0)
        return m_samples;
    const std::size_t before = m_samples.size();
    m_samples.resize(before + count);
    std::memcpy(m_samples.data() + before, m_rest.constData(), count * sizeof(float));
    m_rest.remove(0, static_cast<qsizetype>(count * sizeof(float)));
    return m_samples;
}

std::span<const float> SoundRecorder::last(double seconds)
{
    const std::span<const float> all = samples();
    return all.last(std::min(all.size(), static_cast<std::size_t>(seconds * SoundServer::rate)));
}

void SoundRecorder::forget()
{
    static_cast<void>(samples());
    m_samples.clear();
}

} // namespace loom
