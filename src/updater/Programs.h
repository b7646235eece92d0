#pragma once

#include <QByteArray>
#include <QString>

#include <chrono>
#include <optional>

namespace loom
{

/// What a program prints when it is asked for its --version; nothing when it cannot be started, fails or has not ended
/// in time. Whatever it started and left behind in its process group ends with it.
[[nodiscard]] std::optional<QByteArray> versionAnswer(const QString& program, std::chrono::milliseconds time);

/// Starts a program that outlives this one, in a session of its own, with the environment but none of the open files of
/// this one. False when it cannot be started.
[[nodiscard]] bool startDetached(const QString& program);

} // namespace loom
