#pragma once

#include <QString>

namespace loom::queries
{

/// The documents of the cart, each with the fragment it uses in front. Every one declares $country and $language.
[[nodiscard]] QString getCart();
[[nodiscard]] QString cartCreate();
[[nodiscard]] QString cartLinesAdd();
[[nodiscard]] QString cartLinesUpdate();
[[nodiscard]] QString cartLinesRemove();
[[nodiscard]] QString applyDiscount();
[[nodiscard]] QString cartAppAttribution();
[[nodiscard]] QString cartBuyerIdentity();

} // namespace loom::queries
