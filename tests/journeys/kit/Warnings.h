#pragma once

#include <QStringList>

namespace loom
{

/// Collects what Qt and the pages complain about, from any thread, beside the usual log. The application's own
/// categories do not count: telling of a failure is their work.
void collectWarnings();

/// The complaints since the last call.
[[nodiscard]] QStringList takeWarnings();

/// Everything that was logged since the last call, as it was before anything in it was replaced.
[[nodiscard]] QStringList takeLog();

} // namespace loom
