#pragma once

#include <QString>
#include <QStringList>

/// The documents sent to the Storefront (GraphQL, schema 2025-04). A document declares $country and $language only
/// where it uses them: an unused variable makes it invalid. Fragments stand ahead of the operation that uses them.
namespace loom::queries
{

[[nodiscard]] QString product();
[[nodiscard]] QString productsByIDs();
[[nodiscard]] QString livePrices();
[[nodiscard]] QString recommendations();
[[nodiscard]] QString products();
[[nodiscard]] QString suggest();
[[nodiscard]] QString search();
[[nodiscard]] QString skuImage();
[[nodiscard]] QString collectionProducts();
[[nodiscard]] QString collectionProductCount();
[[nodiscard]] QString countries();
[[nodiscard]] QString rateSample();

/// Batches ask for many handles in one document, each under an alias: "p0", "p1" … or "c0", "c1" …
/// The handles travel as the variables "h0", "h1" …; a collection probe carries them in its text.
[[nodiscard]] QString cardAvailability(qsizetype handleCount);
[[nodiscard]] QString searchCardImages(qsizetype handleCount);
[[nodiscard]] QString productsByHandles(qsizetype handleCount);
[[nodiscard]] QString collectionProbe(const QStringList& handles);

} // namespace loom::queries
