#pragma once

#include "net/AppLanguage.h"

namespace loom
{

/// The name of a country by its ISO 3166-1 code; the code where it has none.
[[nodiscard]] QString countryNameIn(AppLanguage language, const QString& isoCode);

/// The name of a language in another.
[[nodiscard]] QString languageNameIn(AppLanguage language, AppLanguage named);

} // namespace loom
