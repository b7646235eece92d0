#include "catalog/VariantSelection.h"

#include <QCoreApplication>
#include <QLocale>
#include <QSet>
#include <QVariant>

#include <algorithm>

namespace loom
{

namespace
{

QString valueOf(const ProductVariant& variant, const QString& option)
{
    const auto found = std::ranges::find(variant.selectedOptions, option, &SelectedOption::name);
    return found != variant.selectedOptions.end() ? found->value : QString();
}

bool fits(const ProductVariant& variant, const Selection& selection)
{
    return std::ranges::all_of(
        selection.keys(), [&](const QString& option) { return valueOf(variant, option) == selection.value(option); });
}

QString pictureOf(const Product& product, const QString& option, const QString& value)
{
    for (const ProductVariant& variant : product.variants) {
        if (variant.imageURL && valueOf(variant, option) == value)
            return *variant.imageURL;
    }
    return {};
}

/// A colour has a picture of its own for every value; a size shares its picture with the others.
bool isSwatchOption(const Product& product, const ProductOption& option)
{
    const QString name = option.name.toLower();
    if (name == QLatin1String("colour") || name == QLatin1String("color"))
        return true;
    if (name == QLatin1String("size"))
        return false;
    QSet<QString> pictures;
    for (const QString& value : option.values)
        pictures.insert(pictureOf(product, option.name, value));
    return option.values.size() > 1 && pictures.size() == option.values.size() && !pictures.contains(QString());
}

} // namespace

QVariantList OptionGroup::choiceList() const
{
    QVariantList list;
    for (const OptionChoice& choice : choices)
        list.append(QVariant::fromValue(choice));
    return list;
}

bool hasOptions(const Product& product)
{
    const bool isPlaceholder = product.options.size() == 1 && product.options.front().values.size() == 1 &&
                               product.options.front().name == QLatin1String("Title");
    return !product.options.empty() && !isPlaceholder;
}

bool canBeBought(const Product& product, const Selection& selection)
{
    return std::ranges::any_of(product.variants, [&](const ProductVariant& variant) {
        return variant.availableForSale && fits(variant, selection);
    });
}

Selection initialSelection(const Product& product)
{
    Selection selection;
    for (const ProductOption& option : product.options) {
        if (option.values.size() == 1)
            selection.insert(option.name, option.values.front());
    }
    for (const ProductOption& option : product.options) {
        if (option.values.size() < 2 || !isSwatchOption(product, option))
            continue;
        const auto buyable = std::ranges::find_if(option.values, [&](const QString& value) {
            Selection tried = selection;
            tried.insert(option.name, value);
            return canBeBought(product, tried);
        });
        selection.insert(option.name, buyable != option.values.end() ? *buyable : option.values.front());
    }
    return selection;
}

std::vector<OptionGroup> optionGroups(const Product& product, const Selection& selection)
{
    std::vector<OptionGroup> groups;
    if (!hasOptions(product))
        return groups;
    for (const ProductOption& option : product.options) {
        OptionGroup group{.name = option.name,
                          .selected = selection.value(option.name),
                          .isSwatch = isSwatchOption(product, option),
                          .choices = {}};
        for (const QString& value : option.values) {
            Selection tried = selection;
            tried.insert(option.name, value);
            group.choices.push_back({.text = value,
                                     .picture = group.isSwatch ? pictureOf(product, option.name, value) : QString(),
                                     .isSelected = group.selected == value,
                                     .isAvailable = canBeBought(product, tried)});
        }
        groups.push_back(std::move(group));
    }
    return groups;
}

const ProductVariant* selectedVariant(const Product& product, const Selection& selection)
{
    const bool isComplete = std::ranges::all_of(
        product.options, [&](const ProductOption& option) { return selection.contains(option.name); });
    if (!isComplete)
        return nullptr;
    const auto found =
        std::ranges::find_if(product.variants, [&](const ProductVariant& variant) { return fits(variant, selection); });
    return found != product.variants.end() ? &*found : nullptr;
}

const ProductVariant* shownVariant(const Product& product, const Selection& selection)
{
    if (const ProductVariant* const selected = selectedVariant(product, selection))
        return selected;
    const ProductVariant* best = nullptr;
    const auto isBetter = [](const ProductVariant& one, const ProductVariant& other) {
        if (one.availableForSale != other.availableForSale)
            return one.availableForSale;
        return one.price.amount < other.price.amount;
    };
    for (const ProductVariant& variant : product.variants) {
        if (fits(variant, selection) && (!best || isBetter(variant, *best)))
            best = &variant;
    }
    return best;
}

QString optionMissingText(const QString& option)
{
    // German alone writes its nouns with capitals.
    return QCoreApplication::translate("Loomstreet", "Choose a %1 first.")
        .arg(QLocale().language() == QLocale::German ? option : option.toLower());
}

} // namespace loom
