#pragma once

#include "catalog/Product.h"

#include <QMap>

namespace loom
{

/// One value of an option as its button shows it.
struct OptionChoice {
    Q_GADGET
    Q_PROPERTY(QString text MEMBER text)
    Q_PROPERTY(QString picture MEMBER picture)
    Q_PROPERTY(bool isSelected MEMBER isSelected)
    Q_PROPERTY(bool isAvailable MEMBER isAvailable)

public:
    QString text;
    QString picture; ///< an address, for swatches
    bool isSelected = false;
    bool isAvailable = false; ///< with what is chosen of the other options, it can be bought

    bool operator==(const OptionChoice&) const = default;
};

/// One option of a product with what is chosen of it.
struct OptionGroup {
    Q_GADGET
    Q_PROPERTY(QString name MEMBER name)
    Q_PROPERTY(QString selected MEMBER selected)
    Q_PROPERTY(bool isSwatch MEMBER isSwatch)
    Q_PROPERTY(QVariantList choices READ choiceList)

public:
    QString name;
    QString selected;      ///< empty while nothing is chosen
    bool isSwatch = false; ///< its values differ by their pictures
    std::vector<OptionChoice> choices;

    [[nodiscard]] QVariantList choiceList() const;

    bool operator==(const OptionGroup&) const = default;
};

/// What is chosen of a product's options, by the options' names.
using Selection = QMap<QString, QString>;

/// What a product page begins with: the first option that differs by pictures at its first value that can be bought,
/// and every option that leaves no choice. A size is for the shopper to choose.
[[nodiscard]] Selection initialSelection(const Product& product);

[[nodiscard]] std::vector<OptionGroup> optionGroups(const Product& product, const Selection& selection);

/// Whether any variant that fits what is chosen can be bought.
[[nodiscard]] bool canBeBought(const Product& product, const Selection& selection);

/// The variant that is chosen; null while an option is open or the combination does not exist.
[[nodiscard]] const ProductVariant* selectedVariant(const Product& product, const Selection& selection);

/// What a shopper is told who has yet to choose a value of the option.
[[nodiscard]] QString optionMissingText(const QString& option);

/// The variant that prices and pictures are shown of: the chosen one, else the cheapest that fits what is chosen, one
/// that can be bought before one that cannot. Null when none fits.
[[nodiscard]] const ProductVariant* shownVariant(const Product& product, const Selection& selection);

/// False for the one option that the platform gives to products without options.
[[nodiscard]] bool hasOptions(const Product& product);

} // namespace loom

Q_DECLARE_METATYPE(loom::OptionChoice)
Q_DECLARE_METATYPE(loom::OptionGroup)
