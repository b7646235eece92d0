#pragma once

#include "support/SoundServer.h"

namespace loom
{

/// Hears what a loudspeaker plays, from when it is made. At SoundServer::rate.
class SoundRecorder
{
public:
    explicit SoundRecorder(const SoundServer& server, const QString& speaker = QStringLiteral("speaker"));
    SoundRecorder(const SoundRecorder&) = delete;
    SoundRecorder& operator=(const SoundRecorder&) = delete;

    /// Everything so far.
    [[nodiscard]] std::span<const float> samples();
    /// The last of it.
    [[nodiscard]] std::span<const float> last(double seconds);
    void forget();

private:
    OwnedProcess m_process;
    QByteArray m_rest; ///< of a sample that came in pieces
    std::vector<float> m_samples;
};

} // namespace loom
