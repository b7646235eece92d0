#pragma once

#include "net/AppLanguage.h"

class QLocale;

namespace loom
{

/// What the system's settings say of language and place.
[[nodiscard]] SystemLocale readSystemLocale();

/// The same of a given locale; the "C" locale says nothing of a place.
[[nodiscard]] SystemLocale readLocale(const QLocale& locale);

} // namespace loom
