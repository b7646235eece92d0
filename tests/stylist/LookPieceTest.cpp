#include "stylist/LookPiece.h"

#include "support/Json.h"
#include "support/Printing.h"

#include <gtest/gtest.h>

namespace loom
{

namespace
{

Product dress(const QJsonValue& json = productJson(QStringLiteral("silk")))
{
    return *decodeJson(bytes(json), decodeProduct);
}

LookPiece piece(Product product = dress())
{
    LookPiece piece{.handle = "silk"};
    piece.adopt(std::move(product));
    return piece;
}

/// The sizes as they are offered, such as "S M-" where M is sold out.
std::string offered(const LookPiece& piece)
{
    QStringList sizes;
    for (const OptionChoice& size : piece.sizes())
        sizes.append(size.text + (size.isAvailable ? QString() : QStringLiteral("-")));
    return sizes.join(' ').toStdString();
}

TEST(LookPieceTest, EverythingButTheSizeIsTheFirstThatCanBeBought)
{
    Product product = dress();
    product.options.push_back({.name = "Length", .values = {"Short", "Long"}});
    for (ProductVariant& variant : product.variants)
        variant.selectedOptions.append({.name = "Length", .value = "Long"});
    LookPiece coat = piece(product);
    EXPECT_EQ(coat.selection, (Selection{{"Colour", "Ink"}, {"Length", "Long"}})); // in red it is sold out
    EXPECT_EQ(coat.colour(), "Ink");
    EXPECT_EQ(offered(coat), "S M");
    EXPECT_TRUE(coat.lacksSize());
    EXPECT_EQ(coat.chosenVariant(), nullptr);
    EXPECT_EQ(coat.price()->amount, 255);
    coat.chooseSize("XL");
    EXPECT_TRUE(coat.lacksSize());
    coat.chooseSize("S");
    EXPECT_EQ(coat.chosenVariant()->id, "gid://shopify/ProductVariant/2");
    EXPECT_EQ(coat.price()->amount, 260);
    EXPECT_EQ(coat.priceBefore()->amount, 310);

    // A size that nobody has to choose, and a size whose values have pictures of their own.
    product.options[1] = {.name = "Size", .values = {"One size"}};
    for (ProductVariant& variant : product.variants)
        variant.selectedOptions[1].value = "One size";
    EXPECT_EQ(offered(piece(product)), "");
    EXPECT_NE(piece(product).chosenVariant(), nullptr);
    product = dress();
    product.options[1].name = "Taille";
    for (ProductVariant& variant : product.variants) {
        variant.selectedOptions[1].name = "Taille";
        variant.imageURL = variant.selectedOptions[1].value;
    }
    EXPECT_TRUE(piece(product).lacksSize());
}

TEST(LookPieceTest, TheRecommendedSizeIsPreselectedWhereItCanBeBought)
{
    struct Row {
        const char* advice;
        const char* soldOut; ///< variant
        const char* recommended;
        const char* chosen;
    };
    for (const Row& row : {Row{"M", "", "M", "M"}, Row{"m", "", "M", "M"}, Row{"L", "", "", ""}, Row{"", "", "", ""},
                           Row{"M", "gid://shopify/ProductVariant/3", "M", ""}}) {
        SCOPED_TRACE(row.advice);
        Product product = dress();
        for (ProductVariant& variant : product.variants)
            variant.availableForSale = variant.availableForSale && variant.id != row.soldOut;
        LookPiece coat = piece(product);
        coat.advise(row.advice);
        EXPECT_EQ(coat.recommendedSize(), row.recommended);
        EXPECT_EQ(coat.size(), row.chosen);
    }
    LookPiece coat = piece();
    coat.chooseSize("S");
    coat.advise("M");
    EXPECT_EQ(coat.size(), "S"); // the shopper was faster
    // Loaded anew, as in another market, it keeps what was chosen.
    coat.lose();
    EXPECT_EQ(coat.size(), "");
    coat.adopt(dress());
    EXPECT_EQ(coat.size(), "S");
}

TEST(LookPieceTest, WhatIsSoldOutMeanwhileIsNotReplacedUnasked)
{
    LookPiece coat = piece();
    coat.chooseSize("S");
    coat.advise("M");
    coat.markSoldOut("gid://shopify/ProductVariant/2");
    EXPECT_EQ(offered(coat), "S- M");
    EXPECT_TRUE(coat.lacksSize());
    EXPECT_TRUE(coat.isWanted());
    coat.chooseSize("S");
    EXPECT_TRUE(coat.lacksSize());
    coat.markSoldOut("gid://shopify/ProductVariant/3");
    EXPECT_EQ(coat.phase(), LookPiece::Phase::SoldOut);
    EXPECT_FALSE(coat.isWanted());
}

TEST(LookPieceTest, ProductsThatMakeNoSenseAreSoldOut)
{
    Product nothing = dress();
    nothing.variants.clear();
    EXPECT_EQ(piece(nothing).phase(), LookPiece::Phase::SoldOut);
    Product odd = dress();
    odd.options.push_back({.name = "Length", .values = {"Short"}}); // no variant has one
    EXPECT_EQ(piece(odd).phase(), LookPiece::Phase::SoldOut);
    EXPECT_EQ(piece(odd).chosenVariant(), nullptr);
    odd = dress();
    odd.options.push_back({.name = "Length", .values = {}});
    LookPiece coat = piece(odd);
    coat.chooseSize("S");
    EXPECT_EQ(coat.phase(), LookPiece::Phase::SoldOut);
}

TEST(LookPieceTest, WhatIsSwappedCanBeSwappedBack)
{
    ProductListItem other;
    other.handle = "wool";
    ProductListItem third = other;
    third.handle = "linen";
    LookPiece coat = piece();
    coat.chooseSize("S");
    coat.advise("M");
    coat.alternatives = {other, third};
    coat.swapFor(other);
    EXPECT_EQ(coat.phase(), LookPiece::Phase::Loading);
    EXPECT_EQ(coat.item()->handle, "wool");
    EXPECT_EQ(coat.original->handle, "silk");
    EXPECT_EQ(coat.advice, ""); // it was of the other
    coat.swapFor(third);
    EXPECT_EQ(coat.original->handle, "silk");
    coat.swapFor(ProductListItem(*coat.original));
    EXPECT_FALSE(coat.original);
    EXPECT_EQ(coat.alternatives.size(), 2U);
}

} // namespace

} // namespace loom
