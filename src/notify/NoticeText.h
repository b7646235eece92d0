#pragma once

#include "notify/AppNotification.h"

namespace loom
{

/// Servers write for touch screens: "Tap to " at the start of the text or of a sentence becomes "Click to ".
[[nodiscard]] QString adaptedForDesktop(const QString& text);

/// Nobody may see it but whoever it is for: the account it names, or the guest where it names none.
[[nodiscard]] bool isPersonal(const AppNotification& notification);

} // namespace loom
