#pragma once

#include "net/AppLanguage.h"

namespace loom
{

/// The Storefront's LanguageCode value for a language; `systemRegion` tells the two Portugueses apart.
[[nodiscard]] QString storefrontLanguageCode(AppLanguage language, const QString& systemRegion);

/// True for the 245 values of the Storefront's CountryCode, written in capitals.
[[nodiscard]] bool isStorefrontCountry(const QString& code);

/// The market to begin with: the system's region where the Storefront knows it, otherwise "US".
[[nodiscard]] QString defaultCountry(const SystemLocale& locale);

} // namespace loom
