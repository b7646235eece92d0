#include "stylist/LookPiece.h"

#include "stylist/SizeOption.h"

namespace loom
{

namespace
{

/// Where a size is still to be chosen, as opposed to "One size".
const ProductOption* openSizeOption(const Product& product)
{
    const ProductOption* const option = sizeOption(product);
    return option && option->values.size() > 1 ? option : nullptr;
}

bool canChoose(const Product& product, Selection selection, const QString& option, const QString& value)
{
    selection.insert(option, value);
    return canBeBought(product, selection);
}

Selection withoutSize(const Product& product)
{
    Selection selection = initialSelection(product);
    const ProductOption* const size = openSizeOption(product);
    if (size)
        selection.remove(size->name);
    for (const ProductOption& option : product.options) {
        if (&option == size || selection.contains(option.name) || option.values.isEmpty())
            continue;
        const auto found = std::ranges::find_if(
            option.values, [&](const QString& value) { return canChoose(product, selection, option.name, value); });
        selection.insert(option.name, found != option.values.end() ? *found : option.values.front());
    }
    return selection;
}

} // namespace

const ProductOption* LookPiece::sizeChoice() const
{
    return product ? openSizeOption(*product) : nullptr;
}

LookPiece::Phase LookPiece::phase() const
{
    if (product) {
        const bool canBuy = lacksSize() ? canBeBought(*product, selection) : chosenVariant() != nullptr;
        return canBuy ? Phase::Ready : Phase::SoldOut;
    }
    if (isMissing)
        return Phase::Missing;
    return failure ? Phase::Failed : Phase::Loading;
}

const ProductListItem* LookPiece::item() const
{
    if (product)
        return &product->item;
    return card ? &*card : nullptr;
}

void LookPiece::adopt(Product loaded)
{
    const QString chosen = product ? size() : keptSize;
    product = std::move(loaded);
    card = product->item;
    isMissing = false;
    failure.reset();
    selection = withoutSize(*product);
    chooseSize(chosen);
    if (size().isEmpty())
        chooseSize(recommendedSize());
}

void LookPiece::lose()
{
    if (product)
        keptSize = size();
    product.reset();
    selection.clear();
}

void LookPiece::advise(const QString& recommended)
{
    advice = recommended;
    if (lacksSize())
        chooseSize(recommendedSize());
}

void LookPiece::chooseSize(const QString& value)
{
    const ProductOption* const option = sizeChoice();
    if (option && option->values.contains(value) && canChoose(*product, selection, option->name, value))
        selection.insert(option->name, value);
}

void LookPiece::markSoldOut(const QString& variantID)
{
    if (!product)
        return;
    Product left = *product;
    for (ProductVariant& variant : left.variants) {
        if (variant.id == variantID)
            variant.availableForSale = false;
    }
    const QString chosen = size();
    adopt(std::move(left));
    // What takes the place of a size that is gone is for the shopper to say.
    if (size() != chosen)
        selection.remove(sizeChoice()->name);
}

void LookPiece::swapFor(const ProductListItem& other)
{
    LookPiece next{.handle = other.handle,
                   .card = other,
                   .product = {},
                   .selection = {},
                   .keptSize = {},
                   .advice = {},
                   .failure = {},
                   .original = original,
                   .alternatives = std::move(alternatives),
                   .wasSought = wasSought,
                   .seekFailure = {}};
    if (!next.original && item())
        next.original = *item();
    if (next.original && next.original->handle == other.handle)
        next.original.reset();
    *this = std::move(next);
}

std::vector<OptionChoice> LookPiece::sizes() const
{
    const ProductOption* const option = sizeChoice();
    std::vector<OptionChoice> choices;
    for (const QString& value : option ? option->values : QStringList()) {
        choices.push_back({.text = value,
                           .picture = {},
                           .isSelected = size() == value,
                           .isAvailable = canChoose(*product, selection, option->name, value)});
    }
    return choices;
}

QString LookPiece::size() const
{
    const ProductOption* const option = sizeChoice();
    return option ? selection.value(option->name) : QString();
}

QString LookPiece::recommendedSize() const
{
    const ProductOption* const option = sizeChoice();
    return option ? matchingSize(option->values, advice).value_or(QString()) : QString();
}

bool LookPiece::lacksSize() const
{
    return sizeChoice() && size().isEmpty();
}

QString LookPiece::colour() const
{
    const ProductOption* const size = sizeChoice();
    for (const ProductOption& option : product ? product->options : std::vector<ProductOption>()) {
        if (option.values.size() > 1 && (!size || option.name != size->name))
            return selection.value(option.name);
    }
    return {};
}

const ProductVariant* LookPiece::chosenVariant() const
{
    const ProductVariant* const variant = product ? selectedVariant(*product, selection) : nullptr;
    return variant && variant->availableForSale ? variant : nullptr;
}

std::optional<Money> LookPiece::price() const
{
    if (const ProductVariant* const variant = product ? shownVariant(*product, selection) : nullptr)
        return variant->price;
    return item() ? std::optional(item()->price) : std::nullopt;
}

std::optional<Money> LookPiece::formerPrice() const
{
    if (const ProductVariant* const variant = product ? shownVariant(*product, selection) : nullptr)
        return loom::formerPrice(variant->price, variant->compareAtPrice);
    return item() ? loom::formerPrice(item()->price, item()->compareAtPrice) : std::nullopt;
}

std::optional<Money> LookPiece::priceBefore() const
{
    const auto former = formerPrice();
    return former ? former : price();
}

} // namespace loom
