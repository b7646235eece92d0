#include "catalog/ProductDetails.h"

#include "catalog/Product.h"
#include "catalog/ServiceWording.h"

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
    const QVariantList sections = sectionList(productDetails(plain));
    ASSERT_EQ(sections.size(), 1);
    EXPECT_EQ(first(sections).value(QStringLiteral("paragraphs")).toStringList(), QStringList(plain.description));
    EXPECT_EQ(first(sections).value(QStringLiteral("isCollapsible")), false);

    plain.descriptionHTML = QStringLiteral("<details><summary>Care</summary><p>By hand</p></details>");
    EXPECT_EQ(first(sectionList(productDetails(plain))),
              (QVariantMap{{QStringLiteral("title"), QStringLiteral("Care")},
                           {QStringLiteral("paragraphs"), QStringList(QStringLiteral("By hand"))},
                           {QStringLiteral("isCollapsible"), true}}));
    EXPECT_TRUE(sectionList(productDetails({})).isEmpty());
}

TEST(ProductDetailsTest, PagesReadWhatTheMetafieldsSay)
{
    const ProductDetails details = productDetails(product({
        {"custom.specs", R"({"rows": [{"key": "Neck", "value": "Halter"}], "sizeTables": [{"title": "Sizes",
            "rows": [["Size", "Bust"], ["S", "84 cm / 33 in"], ["M", "88 cm / 35 in"]]}, {"title": "Empty", "rows": []}]})"},
        {"custom.aeo_details", R"([{"title": "Fit", "paragraphs": ["Close"],
            "faqs": [{"question": "Lined?", "answer": "Yes"}]}])"},
    }));
    EXPECT_EQ(specList(details), QVariantList({QVariantMap{{QStringLiteral("key"), QStringLiteral("Neck")},
                                                           {QStringLiteral("value"), QStringLiteral("Halter")}}}));
    ASSERT_EQ(sizeTableList(details, SizeUnit::Imperial).size(), 1);
    EXPECT_EQ(first(sizeTableList(details, SizeUnit::Imperial)),
              (QVariantMap{{QStringLiteral("title"), QStringLiteral("Sizes")},
                           {QStringLiteral("columns"), QStringList({QStringLiteral("Size"), QStringLiteral("Bust")})},
                           {QStringLiteral("rows"),
                            QVariantList({QStringList({QStringLiteral("S"), QStringLiteral("33 in")}),
                                          QStringList({QStringLiteral("M"), QStringLiteral("35 in")})})}}));
    const QVariantMap story = first(storyList(details));
    EXPECT_EQ(story.value(QStringLiteral("title")), QStringLiteral("Fit"));
    EXPECT_EQ(first(story.value(QStringLiteral("questions")).toList()),
              (QVariantMap{{QStringLiteral("question"), QStringLiteral("Lined?")},
                           {QStringLiteral("answer"), QStringLiteral("Yes")}}));
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
    EXPECT_EQ(reviewSummary(productDetails(product({{"reviews.rating_count", "212"}, {"reviews.rating", "4"}})))
                  .value(QStringLiteral("count")),
              212);
}

TEST(ProductDetailsTest, OnlyAFinalSaleIsNeverTakenBack)
{
    for (const ServiceClass each : {ServiceClass::FinalSale, ServiceClass::CustomMade, ServiceClass::Luxury,
                                    ServiceClass::Shoes, ServiceClass::Standard}) {
        const ServiceWording wording = serviceWording(each);
        EXPECT_FALSE(wording.returns.isEmpty() || wording.note.isEmpty());
        EXPECT_EQ(wording.note.contains(QLatin1String("cannot be returned")), each == ServiceClass::FinalSale);
        EXPECT_EQ(wording.service.isEmpty(), each == ServiceClass::Standard);
    }
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
