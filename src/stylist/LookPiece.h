#pragma once

#include "catalog/VariantSelection.h"
#include "net/APIError.h"

#include <optional>
#include <vector>

namespace loom
{

/// A place in a look and the piece that fills it, with what is chosen of it. Everything but the size is chosen by
/// itself: the first that can be bought.
struct LookPiece {
    enum class Phase { Loading, Ready, SoldOut, Missing, Failed };

    QString handle;
    std::optional<ProductListItem> card; ///< what is known before the product has come
    std::optional<Product> product;
    Selection selection;
    QString keptSize; ///< what was chosen of a product that has to be loaded anew
    QString advice;   ///< the size that suits the shopper, as the service wrote it
    std::optional<APIError> failure;
    bool isMissing = false;
    bool isLeftOut = false;

    std::optional<ProductListItem> original; ///< what stood there first, where another has taken its place
    std::vector<ProductListItem> alternatives;
    bool wasSought = false; ///< the alternatives are all there are
    std::optional<APIError> seekFailure;

    [[nodiscard]] Phase phase() const;
    [[nodiscard]] bool isReady() const { return phase() == Phase::Ready; }
    /// Whether it counts: it can be bought and is not left out.
    [[nodiscard]] bool isWanted() const { return !isLeftOut && isReady(); }
    [[nodiscard]] const ProductListItem* item() const;

    /// Takes over the product; of what was chosen before stays what can still be bought.
    void adopt(Product loaded);
    /// It cannot be shown any more: why is for the caller to say.
    void lose();
    /// Chooses the recommended size, unless one is chosen already.
    void advise(const QString& recommended);
    /// One that can be bought with what else is chosen.
    void chooseSize(const QString& value);
    /// The cart had none of it left.
    void markSoldOut(const QString& variantID);
    /// Another piece takes its place.
    void swapFor(const ProductListItem& other);

    /// The option by which a size is to be chosen; null where there is none.
    [[nodiscard]] const ProductOption* sizeChoice() const;
    /// Its values with whether each can be bought.
    [[nodiscard]] std::vector<OptionChoice> sizes() const;
    [[nodiscard]] QString size() const;
    /// As the product writes it; empty where there is no advice.
    [[nodiscard]] QString recommendedSize() const;
    [[nodiscard]] bool lacksSize() const;
    /// Of the first option that is neither the size nor without a choice.
    [[nodiscard]] QString colour() const;
    /// What would be put into the cart; null while a size is open, or where it cannot be bought.
    [[nodiscard]] const ProductVariant* chosenVariant() const;
    [[nodiscard]] std::optional<Money> price() const;
    /// None where it is not reduced.
    [[nodiscard]] std::optional<Money> formerPrice() const;
    /// The former price, or else the price.
    [[nodiscard]] std::optional<Money> priceBefore() const;
};

} // namespace loom
