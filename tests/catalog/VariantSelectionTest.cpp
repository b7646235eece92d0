#include "catalog/VariantSelection.h"

#include "support/Printing.h"

#include <QVariant>

namespace loom
{

namespace
{

struct Made {
    const char* values; ///< one for each option, parted by "/"
    bool isAvailable = true;
    double price = 10;
    const char* picture = nullptr;
};

Product made(std::vector<ProductOption> options, std::initializer_list<Made> variants)
{
    Product product;
    product.options = std::move(options);
    for (const Made& one : variants) {
        ProductVariant variant{.id = QString::fromUtf8(one.values),
                               .availableForSale = one.isAvailable,
                               .price = {.amount = one.price, .currencyCode = QStringLiteral("USD")}};
        const QStringList values = variant.id.split(QLatin1Char('/'));
        for (qsizetype i = 0; i < values.size(); ++i)
            variant.selectedOptions.append({product.options.at(static_cast<std::size_t>(i)).name, values.at(i)});
        if (one.picture)
            variant.imageURL = QLatin1String(one.picture);
        product.variants.push_back(std::move(variant));
    }
    return product;
}

ProductOption option(const char* name, std::initializer_list<const char*> values)
{
    ProductOption result{.name = QString::fromUtf8(name), .values = {}};
    for (const char* const value : values)
        result.values.append(QString::fromUtf8(value));
    return result;
}

/// "Colour=Red, Size=S"
Selection chosen(const char* text)
{
    Selection selection;
    for (const QString& part : QString::fromUtf8(text).split(QStringLiteral(", "), Qt::SkipEmptyParts))
        selection.insert(part.section(QLatin1Char('='), 0, 0), part.section(QLatin1Char('='), 1));
    return selection;
}

const Product dress =
    made({option("Colour", {"Red", "Ink"}), option("Size", {"S", "M", "L"})}, {{"Red/S", false, 10, "red"},
                                                                               {"Red/M", false, 10, "red"},
                                                                               {"Ink/S", true, 14, "ink"},
                                                                               {"Ink/M", true, 12},
                                                                               {"Ink/L", false, 9, "ink"}});
const Product single = made({option("Title", {"Default Title"})}, {{"Default Title"}});

} // namespace

TEST(VariantSelectionTest, APageBeginsWithAColourThatCanBeBoughtAndLeavesTheSizeOpen)
{
    struct Row {
        const char* what;
        Product product;
        const char* selection;
    };
    for (const Row& row : {
             Row{"the first colour is sold out", dress, "Colour=Ink"},
             Row{"every colour is sold out",
                 made({option("Color", {"Red", "Ink"}), option("Size", {"S", "M"})},
                      {{"Red/S", false}, {"Ink/M", false}}),
                 "Color=Red"},
             Row{"nothing to choose", single, "Title=Default Title"},
             Row{"one colour, one size", made({option("colour", {"Red"}), option("Size", {"S"})}, {{"Red/S", false}}),
                 "colour=Red, Size=S"},
             Row{"each finish has a picture",
                 made({option("Finish", {"Matt", "Shiny"})}, {{"Matt", true, 10, "1"}, {"Shiny", true, 10, "2"}}),
                 "Finish=Matt"},
             Row{"finishes share a picture",
                 made({option("Finish", {"Matt", "Shiny"})}, {{"Matt", true, 10, "1"}, {"Shiny", true, 10, "1"}}), ""},
             Row{"a finish lacks a picture",
                 made({option("Finish", {"Matt", "Shiny"})}, {{"Matt", true, 10, "1"}, {"Shiny"}}), ""},
             Row{"the second colour goes with what is fixed",
                 made({option("Fit", {"Slim"}), option("Colour", {"Red", "Ink"})}, {{"Slim/Red", false}, {"Slim/Ink"}}),
                 "Fit=Slim, Colour=Ink"},
         })
        EXPECT_EQ(initialSelection(row.product), chosen(row.selection)) << row.what;
}

TEST(VariantSelectionTest, AChoiceIsAvailableWhenItCanBeBoughtWithWhatElseIsChosen)
{
    struct Row {
        const char* selection;
        const char* available; ///< of all groups, in order
    };
    for (const Row& row :
         {Row{"", "Ink S M"}, Row{"Colour=Ink", "Ink S M"}, Row{"Colour=Red", "Ink"}, Row{"Size=L", "S M"},
          Row{"Colour=Ink, Size=S", "Ink S M"}, Row{"Colour=Red, Size=S", "Ink"}}) {
        QStringList available;
        for (const OptionGroup& group : optionGroups(dress, chosen(row.selection))) {
            for (const OptionChoice& choice : group.choices) {
                if (choice.isAvailable)
                    available.append(choice.text);
            }
        }
        EXPECT_EQ(available.join(QLatin1Char(' ')), QLatin1String(row.available)) << row.selection;
    }
    EXPECT_TRUE(optionGroups(single, initialSelection(single)).empty());
    EXPECT_FALSE(hasOptions(single));
    EXPECT_FALSE(hasOptions(made({}, {})));
    EXPECT_TRUE(hasOptions(made({option("Title", {"Default Title", "Other"})}, {})));
}

TEST(VariantSelectionTest, OnlyAWholeSelectionNamesAVariantAndThePriceIsTheCheapestThatFits)
{
    struct Row {
        const char* selection;
        const char* selected;
        const char* shown;
    };
    const auto name = [](const ProductVariant* variant) {
        return variant ? variant->id.toStdString() : std::string("none");
    };
    for (const Row& row :
         {Row{"", "none", "Ink/M"}, Row{"Colour=Ink", "none", "Ink/M"}, Row{"Colour=Red", "none", "Red/S"},
          Row{"Size=S", "none", "Ink/S"}, Row{"Size=L", "none", "Ink/L"}, Row{"Colour=Ink, Size=L", "Ink/L", "Ink/L"},
          Row{"Colour=Red, Size=L", "none", "none"}, Row{"Colour=Blue", "none", "none"}}) {
        EXPECT_EQ(name(selectedVariant(dress, chosen(row.selection))), row.selected) << row.selection;
        EXPECT_EQ(name(shownVariant(dress, chosen(row.selection))), row.shown) << row.selection;
    }
    EXPECT_EQ(name(selectedVariant(single, initialSelection(single))), "Default Title");
    EXPECT_EQ(name(shownVariant(made({}, {}), {})), "none");
}

} // namespace loom
