#pragma once

#include <QString>

namespace loom
{

/// Servers write for touch screens: "Tap to " at the start of the text or of a sentence becomes "Click to ".
[[nodiscard]] QString adaptedForDesktop(const QString& text);

} // namespace loom
