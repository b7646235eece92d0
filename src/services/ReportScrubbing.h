#pragma once

#include <QString>

namespace loom
{

/// The longest text of a report.
inline constexpr qsizetype maximumReportText = 4096;

/// `text` as it may leave in a report: without secrets, tokens, e-mail addresses, addresses of the network and paths
/// under a home folder, each replaced by a word that says what stood there, and without control characters. One that is
/// too long is cut before the word in which it becomes so. `home` is the folder of this user. Any thread.
[[nodiscard]] QString scrubbed(const QString& text, const QString& home);

} // namespace loom
