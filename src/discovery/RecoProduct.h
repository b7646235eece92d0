#pragma once

#include "catalog/ProductListItem.h"
#include "discovery/RecoReason.h"

namespace loom
{

/// A piece as the store recommends it: enough for a card. A value.
struct RecoProduct {
    QString handle;
    QString title;
    QString vendor;
    QString image;       ///< an address; may be empty
    double priceUSD = 0; ///< 0 when it is not known
    std::optional<QString> reason;
    bool isNew = false;
    std::optional<RecoReason> reasonMeta;

    bool operator==(const RecoProduct&) const = default;

    /// The line under the card, in full.
    [[nodiscard]] QString reasonText(AppLanguage language) const;
};

/// Lenient: only a card without a handle is none.
[[nodiscard]] RecoProduct decodeRecoProduct(const JsonReader& json);
/// As the backend writes it.
[[nodiscard]] QJsonObject toJson(const RecoProduct& product);

/// The card of it, priced in US dollars as the store recommended it; the catalog's number is not known. The reason is
/// the one for a window in `language`, cut to what a card could show.
[[nodiscard]] ProductListItem cardOf(const RecoProduct& product, AppLanguage language);

/// Cards of an answer: each handle once, no more than anyone would look through.
inline constexpr std::size_t maximumFeed = 200;
[[nodiscard]] std::vector<RecoProduct> decodeRecoProducts(const std::vector<JsonReader>& elements);

} // namespace loom
