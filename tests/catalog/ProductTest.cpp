#include "catalog/Product.h"

#include "support/Json.h"

#include <QJsonArray>

namespace loom
{

namespace
{

const QDateTime firstOfMarch(QDate(2025, 3, 1), QTime(10, 0), Qt::UTC);

template <typename Record>
Result<Record, QString> decode(const QJsonValue& value, Record (*decoder)(const JsonReader&))
{
    return decodeJson(bytes(value), decoder);
}

Money dollars(double amount)
{
    return {.amount = amount, .currencyCode = QStringLiteral("USD")};
}

ProductListItem wholeCard()
{
    ProductListItem item;
    item.id = QStringLiteral("gid://shopify/Product/7");
    item.handle = QStringLiteral("silk");
    item.title = QStringLiteral("Silk dress");
    item.vendor = QStringLiteral("Ada Lin");
    item.imageURL = QStringLiteral("https://pictures.example/1.jpg");
    item.price = dollars(248.5);
    item.compareAtPrice = dollars(310);
    item.tags = {QStringLiteral("silk"), QStringLiteral("New")};
    item.createdAt = firstOfMarch;
    item.styleImages = {QStringLiteral("https://pictures.example/red.jpg"),
                        QStringLiteral("https://pictures.example/ink.jpg")};
    item.cardImages = {QStringLiteral("https://pictures.example/1.jpg"),
                       QStringLiteral("https://pictures.example/2.jpg")};
    item.availableForSale = true;
    return item;
}

} // namespace

TEST(ProductListItemTest, ACardIsReadFieldByField)
{
    const QJsonObject base = cardJson(QStringLiteral("silk"));
    EXPECT_EQ(*decode(base, decodeListItem), wholeCard());
    using Item = ProductListItem;
    struct Row {
        const char* path;
        const char* value; ///< none takes the field away
        void (*expected)(Item& item);
    };
    const char* const first = "styleVariants.nodes[0]";
    for (const Row& row : {
             Row("tags", R"(["silk", null, 3])", [](Item& i) { i.tags = {QStringLiteral("silk")}; }),
             Row("featuredImage.url", "\"\"", [](Item& i) { i.imageURL.reset(); }),
             Row("createdAt", "\"yesterday\"", [](Item& i) { i.createdAt.reset(); }),
             Row("compareAtPriceRange.minVariantPrice.amount", "\"0.0\"", [](Item& i) { i.compareAtPrice.reset(); }),
             Row("compareAtPriceRange.minVariantPrice.amount", "\"x\"", [](Item& i) { i.compareAtPrice.reset(); }),
             Row(first, R"({"image": {"url": ""}})", [](Item& i) { i.styleImages.removeFirst(); }),
         }) {
        ProductListItem expected = wholeCard();
        row.expected(expected);
        const QJsonValue value = row.value ? json(row.value) : QJsonValue(QJsonValue::Undefined);
        const auto item = decode(changed(base, QLatin1String(row.path), value), decodeListItem);
        ASSERT_TRUE(item) << row.path << ' ' << item.error().toStdString();
        EXPECT_EQ(*item, expected) << row.path << ' ' << (row.value ? row.value : "gone");
    }

    for (const char* const path :
         {"id", "handle", "title", "priceRange.minVariantPrice.amount", "priceRange.minVariantPrice.currencyCode"}) {
        const auto item = decode(changed(base, QLatin1String(path), QJsonValue::Null), decodeListItem);
        ASSERT_FALSE(item) << path;
        EXPECT_TRUE(item.error().startsWith(QLatin1String(path))) << item.error().toStdString();
    }
}

TEST(ProductListItemTest, AStoredItemComesBackAsItWas)
{
    ProductListItem whole = wholeCard();
    whole.title = QString::fromUtf8("\"łódź\" 👗\n");
    whole.createdAt = firstOfMarch.addMSecs(7);
    whole.recoReason = QStringLiteral("Because you looked at silk");
    whole.seenPrice = 248.5;
    whole.seenAt = QDateTime(QDate(2025, 3, 9), QTime(8, 7, 6, 5), Qt::OffsetFromUTC, 3600);
    whole.seenCurrency = QStringLiteral("USD");
    const ProductListItem bare{.id = QStringLiteral("7"), .handle = QStringLiteral("a"), .price = dollars(0)};
    for (const ProductListItem& item : {whole, bare})
        EXPECT_EQ(*decode(toJson(item), decodeStoredItem), item);
    for (const char* const path : {"id", "handle", "title", "price", "price.amount", "price.currencyCode"}) {
        EXPECT_FALSE(decode(changed(toJson(whole), QLatin1String(path), QJsonValue::Null), decodeStoredItem)) << path;
    }

    EXPECT_EQ(bytes(toJson(bare)),
              R"({"cardImages":[],"handle":"a","id":"7","price":{"amount":0,"currencyCode":"USD"},)"
              R"("styleImages":[],"tags":[],"title":"","vendor":""})");
}

TEST(ProductListItemTest, OnlyAHigherPriceInTheSameCurrencyIsAFormerOne)
{
    EXPECT_EQ(formerPrice(dollars(10), dollars(12)), dollars(12));
    EXPECT_EQ(formerPrice(dollars(10), dollars(10)), std::nullopt);
    EXPECT_EQ(formerPrice(dollars(10), dollars(9)), std::nullopt);
    EXPECT_EQ(formerPrice(dollars(10), Money{.amount = 12, .currencyCode = QStringLiteral("EUR")}), std::nullopt);
    EXPECT_EQ(formerPrice(dollars(10), std::nullopt), std::nullopt);
}

TEST(ProductTest, AProductIsReadFieldByField)
{
    const QJsonObject base = productJson(QStringLiteral("silk"));
    const auto whole = decode(base, decodeProduct);
    ASSERT_TRUE(whole);
    EXPECT_EQ(whole->item, wholeCard());
    ASSERT_EQ(whole->variants.size(), 3U);
    EXPECT_EQ(whole->variants[1], (ProductVariant{.id = QStringLiteral("gid://shopify/ProductVariant/2"),
                                                  .title = QStringLiteral("Ink / S"),
                                                  .availableForSale = true,
                                                  .price = dollars(260),
                                                  .compareAtPrice = dollars(310),
                                                  .selectedOptions = {{QStringLiteral("Colour"), QStringLiteral("Ink")},
                                                                      {QStringLiteral("Size"), QStringLiteral("S")}},
                                                  .imageURL = QStringLiteral("https://pictures.example/ink.jpg"),
                                                  .quantityAvailable = 1}));

    struct Row {
        const char* path;
        const char* value;
        void (*expected)(Product& product);
    };
    for (const Row& row : {
             Row("images.nodes[0].url", "\"\"", [](Product& p) { p.images.removeFirst(); }),
             Row("options[0].name", "null", [](Product& p) { p.options.erase(p.options.begin()); }),
             Row("options[0].optionValues[0]", "null", [](Product& p) { p.options[0].values.removeFirst(); }),
             Row("variants.nodes[0].id", "null", [](Product& p) { p.variants.erase(p.variants.begin()); }),
             Row("variants.nodes[0].price.amount", "\"\"", [](Product& p) { p.variants.erase(p.variants.begin()); }),
             Row("variants.nodes[1].compareAtPrice.amount", "\"0.0\"",
                 [](Product& p) { p.variants[1].compareAtPrice.reset(); }),
             Row("variants.nodes[1].selectedOptions[0].value", "null",
                 [](Product& p) { p.variants.erase(p.variants.begin() + 1); }),
             Row("metafields[1].value", "null", [](Product& p) { p.metafields.clear(); }),
         }) {
        Product expected = *whole;
        row.expected(expected);
        const auto product = decode(changed(base, QLatin1String(row.path), json(row.value)), decodeProduct);
        ASSERT_TRUE(product) << row.path << ' ' << product.error().toStdString();
        EXPECT_EQ(*product, expected) << row.path << ' ' << row.value;
    }
    EXPECT_FALSE(decode(changed(base, QStringLiteral("title"), QJsonValue::Null), decodeProduct));
}

} // namespace loom
