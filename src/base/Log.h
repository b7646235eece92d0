#pragma once

#include <QLoggingCategory>
#include <QString>

namespace loom
{

Q_DECLARE_LOGGING_CATEGORY(logApp)
Q_DECLARE_LOGGING_CATEGORY(logCatalog)
Q_DECLARE_LOGGING_CATEGORY(logNet)
Q_DECLARE_LOGGING_CATEGORY(logPlatform)
Q_DECLARE_LOGGING_CATEGORY(logStorage)

/// `text` without what a log must not hold: addresses lose query and fragment, and e-mail addresses, keys of carts,
/// tokens, one-time codes and bearer headers are replaced by a word that says what stood there.
[[nodiscard]] QString redacted(const QString& text);

/// Sends every message of the process through redacted() to the standard error stream, with time and category.
void installRedactingLog();

} // namespace loom
