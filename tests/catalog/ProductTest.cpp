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
    for (const Row& row : std::initializer_list<Row>{
             {"vendor", nullptr,
              [](Item& i) {
                  i.vendor.clear();
              }},
             {"vendor", "null",
              [](Item& i) {
                  i.vendor.clear();
              }},
             {"vendor", "\"\"",
              [](Item& i) {
                  i.vendor.clear();
              }},
             {"tags", nullptr,
              [](Item& i) {
                  i.tags.clear();
              }},
             {"tags", "null",
              [](Item& i) {
                  i.tags.clear();
              }},
             {"tags", R"(["silk", null, 3])",
              [](Item& i) {
                  i.tags = {QStringLiteral("silk")};
              }},
             {"availableForSale", nullptr,
              [](Item& i) {
                  i.availableForSale.reset();
              }},
             {"availableForSale", "false",
              [](Item& i) {
                  i.availableForSale = false;
              }},
             {"featuredImage", "null",
              [](Item& i) {
                  i.imageURL.reset();
              }},
             {"featuredImage.url", "\"\"",
              [](Item& i) {
                  i.imageURL.reset();
              }},
             {"featuredImage.url", "null",
              [](Item& i) {
                  i.imageURL.reset();
              }},
             {"createdAt", nullptr,
              [](Item& i) {
                  i.createdAt.reset();
              }},
             {"createdAt", "\"yesterday\"",
              [](Item& i) {
                  i.createdAt.reset();
              }},
             {"createdAt", "\"2025-03-01\"",
              [](Item& i) {
                  i.createdAt = QDate(2025, 3, 1).startOfDay(Qt::UTC);
              }},
             {"priceRange.minVariantPrice.amount", "48000",
              [](Item& i) {
                  i.price.amount = 48000;
              }},
             {"compareAtPriceRange", nullptr,
              [](Item& i) {
                  i.compareAtPrice.reset();
              }},
             {"compareAtPriceRange", "null",
              [](Item& i) {
                  i.compareAtPrice.reset();
              }},
             {"compareAtPriceRange.minVariantPrice", "null",
              [](Item& i) {
                  i.compareAtPrice.reset();
              }},
             {"compareAtPriceRange.minVariantPrice.amount", "\"0.0\"",
              [](Item& i) {
                  i.compareAtPrice.reset();
              }},
             {"compareAtPriceRange.minVariantPrice.amount", "\"x\"",
              [](Item& i) {
                  i.compareAtPrice.reset();
              }},
             {"styleVariants", nullptr,
              [](Item& i) {
                  i.styleImages.clear();
              }},
             {first, "null",
              [](Item& i) {
                  i.styleImages.removeFirst();
              }},
             {first, R"({"image": null})",
              [](Item& i) {
                  i.styleImages.removeFirst();
              }},
             {first, R"({"image": {"url": ""}})",
              [](Item& i) {
                  i.styleImages.removeFirst();
              }},
             {"cardImages", "null",
              [](Item& i) {
                  i.cardImages.clear();
              }},
             {"cardImages.nodes[1].url", "\"\"",
              [](Item& i) {
                  i.cardImages.removeLast();
              }},
             {"title", R"("<b>ŁÓDŹ</b> 👗 ثوب")",
              [](Item& i) {
                  i.title = QString::fromUtf8("<b>ŁÓDŹ</b> 👗 ثوب");
              }},
             {"somethingNew", "[1]",
              [](Item&) {
              }},
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
    EXPECT_EQ(toJson(whole).keys(),
              QStringList({QStringLiteral("availableForSale"), QStringLiteral("cardImages"),
                           QStringLiteral("compareAtPrice"), QStringLiteral("createdAt"), QStringLiteral("handle"),
                           QStringLiteral("id"), QStringLiteral("imageURL"), QStringLiteral("price"),
                           QStringLiteral("recoReason"), QStringLiteral("seenAt"), QStringLiteral("seenCurrency"),
                           QStringLiteral("seenPrice"), QStringLiteral("styleImages"), QStringLiteral("tags"),
                           QStringLiteral("title"), QStringLiteral("vendor")}));
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
    for (const Row& row : std::initializer_list<Row>{
             {"vendor", "null",
              [](Item& i) {
                  i.vendor.clear();
              }},
             {"imageURL", "\"\"",
              [](Item& i) {
                  i.imageURL.reset();
              }},
             {"imageURL", "7",
              [](Item& i) {
                  i.imageURL.reset();
              }},
             {"compareAtPrice", "7",
              [](Item& i) {
                  i.compareAtPrice.reset();
              }},
             {"compareAtPrice.amount", "null",
              [](Item& i) {
                  i.compareAtPrice.reset();
              }},
             {"compareAtPrice.currencyCode", "null",
              [](Item& i) {
                  i.compareAtPrice.reset();
              }},
             {"compareAtPrice.amount", "0",
              [](Item& i) {
                  i.compareAtPrice.reset();
              }},
             {"createdAt", "\"soon\"",
              [](Item& i) {
                  i.createdAt.reset();
              }},
             {"price.amount", "\"248.5\"",
              [](Item&) {
              }},
             {"availableForSale", "\"yes\"",
              [](Item& i) {
                  i.availableForSale.reset();
              }},
             {"tags", "{}",
              [](Item& i) {
                  i.tags.clear();
              }},
             {"seenPrice", "\"1.5\"",
              [](Item& i) {
                  i.seenPrice = 1.5;
              }},
             {"seenAt", "5",
              [](Item&) {
              }},
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
    for (const Row& row : std::initializer_list<Row>{
             {"description", "null",
              [](Product& p) {
                  p.description.clear();
              }},
             {"descriptionHtml", "null",
              [](Product& p) {
                  p.descriptionHTML.clear();
              }},
             {"productType", "null",
              [](Product& p) {
                  p.productType.clear();
              }},
             {"collections", "null",
              [](Product& p) {
                  p.collectionHandles.clear();
              }},
             {"collections.nodes[0]", "null",
              [](Product& p) {
                  p.collectionHandles.removeFirst();
              }},
             {"images", "null",
              [](Product& p) {
                  p.images.clear();
              }},
             {"images.nodes[0].url", "\"\"",
              [](Product& p) {
                  p.images.removeFirst();
              }},
             {"options", "null",
              [](Product& p) {
                  p.options.clear();
              }},
             {"options[0].name", "null",
              [](Product& p) {
                  p.options.erase(p.options.begin());
              }},
             {"options[0].optionValues[0]", "null",
              [](Product& p) {
                  p.options[0].values.removeFirst();
              }},
             {"variants", "null",
              [](Product& p) {
                  p.variants.clear();
              }},
             {"variants.nodes[0]", "null",
              [](Product& p) {
                  p.variants.erase(p.variants.begin());
              }},
             {"variants.nodes[0].id", "null",
              [](Product& p) {
                  p.variants.erase(p.variants.begin());
              }},
             {"variants.nodes[0].price.amount", "\"\"",
              [](Product& p) {
                  p.variants.erase(p.variants.begin());
              }},
             {"variants.nodes[0].title", "null",
              [](Product& p) {
                  p.variants[0].title.clear();
              }},
             {"variants.nodes[1].availableForSale", "null",
              [](Product& p) {
                  p.variants[1].availableForSale = false;
              }},
             {"variants.nodes[1].compareAtPrice.amount", "\"0.0\"",
              [](Product& p) {
                  p.variants[1].compareAtPrice.reset();
              }},
             {"variants.nodes[1].compareAtPrice.amount", "null",
              [](Product& p) {
                  p.variants[1].compareAtPrice.reset();
              }},
             {"variants.nodes[1].quantityAvailable", "-3",
              [](Product& p) {
                  p.variants[1].quantityAvailable = -3;
              }},
             {"variants.nodes[1].selectedOptions[0].value", "null",
              [](Product& p) {
                  p.variants.erase(p.variants.begin() + 1);
              }},
             {"variants.nodes[1].image.url", "\"\"",
              [](Product& p) {
                  p.variants[1].imageURL.reset();
              }},
             {"metafields", "null",
              [](Product& p) {
                  p.metafields.clear();
              }},
             {"metafields[1].type", "null",
              [](Product& p) {
                  p.metafields[0].type.clear();
              }},
             {"metafields[1].value", "null",
              [](Product& p) {
                  p.metafields.clear();
              }},
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
