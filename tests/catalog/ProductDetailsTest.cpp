#include "catalog/ProductDetails.h"

#include "catalog/Product.h"

#include <gtest/gtest.h>

namespace loom
{

namespace
{

Product product(std::initializer_list<std::pair<const char*, const char*>> fields)
{
    Product result;
    for (const auto& [key, value] : fields) {
        const QString name = QString::fromUtf8(key);
        result.metafields.push_back(
            {name.section(QLatin1Char('.'), 0, 0), name.section(QLatin1Char('.'), 1), {}, QString::fromUtf8(value)});
    }
    return result;
}

QVariantMap first(const QVariantList& list)
{
    return list.value(0).toMap();
}

} // namespace

TEST(ProductDetailsTest, ADescriptionWithoutMarkupIsShownAsItIsWritten)
{
    Product plain;
    plain.description = QStringLiteral("Cut <b>on</b> the bias & lined");
    EXPECT_EQ(first(sectionList(productDetails(plain))).value(QStringLiteral("paragraphs")).toStringList(),
              QStringList(plain.description));
    EXPECT_TRUE(sectionList(productDetails({})).isEmpty());
}

TEST(ProductDetailsTest, ReviewsAreSummedUpFromWhatThereIs)
{
    EXPECT_TRUE(reviewSummary(productDetails({})).isEmpty());
    const QVariantMap rated = reviewSummary(productDetails(product({{"reviews.rating", "4.5"}})));
    EXPECT_EQ(rated.value(QStringLiteral("rating")), 4.5);
    EXPECT_EQ(rated.value(QStringLiteral("count")), 0); // not known
    const QVariantMap whole = reviewSummary(productDetails(product({
        {"reviews.rating", "4.5"},
        {"custom.reviews",
         R"({"total": 12, "footer": "From buyers", "tagSummary": [{"tag": "True to size", "count": 3}],
            "reviews": [{"id": "1", "user": "J.", "content": "Lovely", "rating": 5}]})"},
    })));
    EXPECT_EQ(whole.value(QStringLiteral("count")), 12);
    EXPECT_EQ(whole.value(QStringLiteral("footer")), QStringLiteral("From buyers"));
    EXPECT_EQ(first(whole.value(QStringLiteral("tags")).toList()).value(QStringLiteral("count")), 3);
    EXPECT_EQ(first(whole.value(QStringLiteral("reviews")).toList()).value(QStringLiteral("content")),
              QStringLiteral("Lovely"));
}

TEST(ProductDetailsTest, ThePieceDecidesTheServiceClass)
{
    Product sold = product({});
    sold.item.tags = {QStringLiteral("Final Sale")};
    sold.item.title = QStringLiteral("Ankle boot");
    EXPECT_EQ(productDetails(sold).serviceClass, ServiceClass::FinalSale);
    sold.item.tags.clear();
    EXPECT_EQ(productDetails(sold).serviceClass, ServiceClass::Shoes);
    sold.collectionHandles = {QStringLiteral("luxury-shoes")};
    EXPECT_EQ(productDetails(sold).serviceClass, ServiceClass::Luxury);
}

} // namespace loom
