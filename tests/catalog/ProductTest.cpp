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
             Row("vendor", "null", [](Item& i) { i.vendor.clear(); }),
             Row("tags", "null", [](Item& i) { i.tags.clear(); }),
             Row("tags", R"(["silk", null, 3])", [](Item& i) { i.tags = {QStringLiteral("silk")}; }),
             Row("availableForSale", nullptr, [](Item& i) { i.availableForSale.reset(); }),
             Row("availableForSale", "false", [](Item& i) { i.availableForSale = false; }),
             Row("featuredImage", "null", [](Item& i) { i.imageURL.reset(); }),
             Row("featuredImage.url", "\"\"", [](Item& i) { i.imageURL.reset(); }),
             Row("createdAt", "\"yesterday\"", [](Item& i) { i.createdAt.reset(); }),
             Row("createdAt", "\"2025-03-01\"", [](Item& i) { i.createdAt = QDate(2025, 3, 1).startOfDay(Qt::UTC); }),
             Row("compareAtPriceRange", "null", [](Item& i) { i.compareAtPrice.reset(); }),
             Row("compareAtPriceRange.minVariantPrice.amount", "\"0.0\"", [](Item& i) { i.compareAtPrice.reset(); }),
             Row("compareAtPriceRange.minVariantPrice.amount", "\"x\"", [](Item& i) { i.compareAtPrice.reset(); }),
             Row("styleVariants", nullptr, [](Item& i) { i.styleImages.clear(); }),
             Row(first, "null", [](Item& i) { i.styleImages.removeFirst(); }),
             Row(first, R"({"image": {"url": ""}})", [](Item& i) { i.styleImages.removeFirst(); }),
             Row("cardImages", "null", [](Item& i) { i.cardImages.clear(); }),
             Row("cardImages.nodes[1].url", "\"\"", [](Item& i) { i.cardImages.removeLast(); }),
             Row("title", R"("<b>ŁÓDŹ</b> 👗 ثوب")",
                 [](Item& i) { i.title = QString::fromUtf8("<b>ŁÓDŹ</b> 👗 ثوب"); }),
             Row("somethingNew", "[1]", [](Item&) {}),
         }) {
        ProductListItem expected = wholeCard();
        row.expected(expected);
        const QJsonValue value = row.value ? json(row.value) : QJsonValue(QJsonValue::Undefined);
        const auto item = decode(changed(base, QLatin1String(row.path), value), decodeListItem);
        ASSERT_TRUE(item) << row.path << ' ' << item.error().toStdString();
        EXPECT_EQ(*item, expected) << row.path << ' ' << (row.value ? row.value : "gone");
    }

    for (const auto& [path, problem] :
         {std::pair("id", "id: expected a text"), std::pair("handle", "handle: expected a text"),
          std::pair("title", "title: expected a text"), std::pair("priceRange", "priceRange: expected an object"),
          std::pair("priceRange.minVariantPrice.amount",
                    "priceRange.minVariantPrice.amount: expected a decimal number"),
          std::pair("priceRange.minVariantPrice.currencyCode",
                    "priceRange.minVariantPrice.currencyCode: expected a text")}) {
        const auto item = decode(changed(base, QLatin1String(path), QJsonValue::Null), decodeListItem);
        ASSERT_FALSE(item) << path;
        EXPECT_EQ(item.error(), QLatin1String(problem));
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

    EXPECT_EQ(bytes(toJson(bare)),
              R"({"cardImages":[],"handle":"a","id":"7","price":{"amount":0,"currencyCode":"USD"},)"
              R"("styleImages":[],"tags":[],"title":"","vendor":""})");
}

TEST(ProductListItemTest, AStoredItemOfAnotherVersionIsReadAsFarAsItGoes)
{
    const QJsonObject base = toJson(wholeCard());
    using Item = ProductListItem;
    struct Row {
        const char* path;
        const char* value;
        void (*expected)(Item& item);
    };
    for (const Row& row : {
             Row("vendor", "null", [](Item& i) { i.vendor.clear(); }),
             Row("imageURL", "\"\"", [](Item& i) { i.imageURL.reset(); }),
             Row("compareAtPrice.amount", "null", [](Item& i) { i.compareAtPrice.reset(); }),
             Row("compareAtPrice.amount", "0", [](Item& i) { i.compareAtPrice.reset(); }),
             Row("createdAt", "\"soon\"", [](Item& i) { i.createdAt.reset(); }),
             Row("price.amount", "\"248.5\"", [](Item&) {}),
             Row("seenPrice", "\"1.5\"", [](Item& i) { i.seenPrice = 1.5; }),
         }) {
        ProductListItem expected = wholeCard();
        row.expected(expected);
        const auto item = decode(changed(base, QLatin1String(row.path), json(row.value)), decodeStoredItem);
        ASSERT_TRUE(item) << row.path << ' ' << item.error().toStdString();
        EXPECT_EQ(*item, expected) << row.path << ' ' << row.value;
    }
    for (const char* const path : {"id", "handle", "title", "price", "price.amount", "price.currencyCode"})
        EXPECT_FALSE(decode(changed(base, QLatin1String(path), QJsonValue::Null), decodeStoredItem)) << path;
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
    EXPECT_EQ(whole->description, QStringLiteral("Cut on the bias."));
    EXPECT_EQ(whole->descriptionHTML, QStringLiteral("<p>Cut on the bias.</p>"));
    EXPECT_EQ(whole->productType, QStringLiteral("Dress"));
    EXPECT_EQ(whole->images, whole->item.styleImages);
    EXPECT_EQ(whole->collectionHandles, QStringList({QStringLiteral("dresses"), QStringLiteral("new-in")}));
    ASSERT_EQ(whole->options.size(), 2U);
    EXPECT_EQ(whole->options[1], (ProductOption{QStringLiteral("Size"), {QStringLiteral("S"), QStringLiteral("M")}}));
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
    EXPECT_EQ(whole->variants[2].imageURL, std::nullopt);
    EXPECT_EQ(whole->variants[2].quantityAvailable, std::nullopt);
    EXPECT_EQ(whole->metafields,
              (std::vector<Metafield>{{QStringLiteral("custom"), QStringLiteral("presale"),
                                       QStringLiteral("single_line_text_field"), QStringLiteral("Ships in May")}}));

    struct Row {
        const char* path;
        const char* value;
        void (*expected)(Product& product);
    };
    for (const Row& row : {
             Row("productType", "null", [](Product& p) { p.productType.clear(); }),
             Row("collections", "null", [](Product& p) { p.collectionHandles.clear(); }),
             Row("images.nodes[0].url", "\"\"", [](Product& p) { p.images.removeFirst(); }),
             Row("options", "null", [](Product& p) { p.options.clear(); }),
             Row("options[0].name", "null", [](Product& p) { p.options.erase(p.options.begin()); }),
             Row("options[0].optionValues[0]", "null", [](Product& p) { p.options[0].values.removeFirst(); }),
             Row("variants", "null", [](Product& p) { p.variants.clear(); }),
             Row("variants.nodes[0]", "null", [](Product& p) { p.variants.erase(p.variants.begin()); }),
             Row("variants.nodes[0].id", "null", [](Product& p) { p.variants.erase(p.variants.begin()); }),
             Row("variants.nodes[0].price.amount", "\"\"", [](Product& p) { p.variants.erase(p.variants.begin()); }),
             Row("variants.nodes[1].availableForSale", "null",
                 [](Product& p) { p.variants[1].availableForSale = false; }),
             Row("variants.nodes[1].compareAtPrice.amount", "\"0.0\"",
                 [](Product& p) { p.variants[1].compareAtPrice.reset(); }),
             Row("variants.nodes[1].quantityAvailable", "-3", [](Product& p) { p.variants[1].quantityAvailable = -3; }),
             Row("variants.nodes[1].selectedOptions[0].value", "null",
                 [](Product& p) { p.variants.erase(p.variants.begin() + 1); }),
             Row("variants.nodes[1].image.url", "\"\"", [](Product& p) { p.variants[1].imageURL.reset(); }),
             Row("metafields", "null", [](Product& p) { p.metafields.clear(); }),
             Row("metafields[1].type", "null", [](Product& p) { p.metafields[0].type.clear(); }),
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
