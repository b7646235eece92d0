#include "catalog/ProductMetafields.h"

#include <gtest/gtest.h>

namespace loom
{

namespace
{

ProductMetafields read(const char* nameSpace, const char* key, const QString& value)
{
    return productMetafields({{.nameSpace = QString::fromUtf8(nameSpace),
                               .key = QString::fromUtf8(key),
                               .type = QStringLiteral("json"),
                               .value = value}});
}

ProductMetafields custom(const char* key, const char* value)
{
    return read("custom", key, QString::fromUtf8(value));
}

std::string joined(const QStringList& texts)
{
    return texts.join(u'|').toStdString();
}

} // namespace

TEST(ProductMetafieldsTest, ABrokenValueLeavesOnlyItsOwnFieldEmpty)
{
    struct Field {
        const char* nameSpace;
        const char* key;
        const char* value;
        bool isJson = true;
    };
    const std::vector<Field> known{
        {"custom", "specs", R"([{"key":"Neck","value":"Halter"}])"},
        {"custom", "highlights", R"(["Cut on the bias"])"},
        {"custom", "composition", R"(["Silk"])"},
        {"custom", "aeo_details", R"([{"paragraphs":["Close"]}])"},
        {"custom", "presale", "Ships in May", false},
        {"custom", "reviews", R"({"total":2})"},
        {"custom", "source_item_id", "77", false},
        {"pdp", "topcartsize", "Runs small", false},
        {"reviews", "rating", R"({"value":"4.7"})"},
        {"reviews", "rating_count", "212"},
    };
    std::vector<Metafield> fields;
    fields.reserve(known.size());
    for (const Field& field : known)
        fields.push_back(
            {QString::fromUtf8(field.nameSpace), QString::fromUtf8(field.key), {}, QString::fromUtf8(field.value)});

    const ProductMetafields whole = productMetafields(fields);
    EXPECT_EQ(whole.specs, (QList<SpecRow>{{QStringLiteral("Neck"), QStringLiteral("Halter")}}));
    EXPECT_EQ(joined(whole.highlights + whole.composition), "Cut on the bias|Silk");
    EXPECT_EQ(whole.aeoSections.size(), 1);
    EXPECT_EQ(whole.presale, QStringLiteral("Ships in May"));
    EXPECT_EQ(whole.reviews.value_or(BuyerReviewData{}).total, 2);
    EXPECT_EQ(whole.sourceItemID, QStringLiteral("77"));
    EXPECT_EQ(whole.sizeHint, QStringLiteral("Runs small"));
    EXPECT_EQ(whole.rating, 4.7);
    EXPECT_EQ(whole.ratingCount, 212);

    for (std::size_t i = 0; i < known.size(); ++i) {
        std::vector<Metafield> without = fields;
        without.erase(without.begin() + static_cast<std::ptrdiff_t>(i));
        const ProductMetafields expected = productMetafields(without);
        EXPECT_NE(expected, whole) << known[i].key;
        std::vector<QString> brokenValues{QString(), QStringLiteral(" \n\u202e")};
        if (known[i].isJson)
            brokenValues.insert(brokenValues.end(), {QStringLiteral("["), QStringLiteral("{\"total\":"),
                                                     QStringLiteral("[null]"), QStringLiteral("{}")});
        for (const QString& broken : brokenValues) {
            std::vector<Metafield> some = fields;
            some[i].value = broken;
            EXPECT_EQ(productMetafields(some), expected) << known[i].key << ": " << broken.toStdString();
        }
        std::vector<Metafield> others = fields;
        others[i].nameSpace = QStringLiteral("other");
        EXPECT_EQ(productMetafields(others), expected) << known[i].key;
    }
}

TEST(ProductMetafieldsTest, ListsOfTextsMayBePlainText)
{
    struct Row {
        const char* value;
        const char* expected;
    };
    const Row rows[] = {
        {R"(["Silk", "  two\n lines ", "", 80, null, ["nested"], "a\u202eb\u0000c"])", "Silk|two lines|80|abc"},
        {"Silk\r\n\n- Lined\n• Cut on the bias\n-5 °C", "Silk|Lined|Cut on the bias|-5 °C"},
        {"\"quoted\"", "\"quoted\""},
        {R"(["cut off)", ""},
        {R"({"a":"b"})", ""},
    };
    for (const Row& row : rows) {
        EXPECT_EQ(joined(custom("highlights", row.value).highlights), row.expected) << row.value;
        EXPECT_EQ(joined(custom("composition", row.value).composition), row.expected) << row.value;
    }
}

TEST(ProductMetafieldsTest, RatingsAreStarsOutOfFive)
{
    struct Row {
        const char* value;
        std::optional<double> expected;
    };
    const Row rows[] = {
        {R"({"value":"4.7","scale_min":"1.0","scale_max":"5.0"})", 4.7},
        {R"({"value":4.5})", 4.5},
        {R"({"value":"8","scale_max":"10"})", 4.0},
        {R"({"value":"4","scale_max":"0"})", 4.0},
        {R"({"value":"9"})", 5.0},
        {"4.7", 4.7},
        {" 6 ", 5.0},
        {"0", std::nullopt},
        {"nan", std::nullopt},
        {"1e999", std::nullopt},
        {R"({"scale_max":"5.0"})", std::nullopt},
        {"good", std::nullopt},
    };
    for (const Row& row : rows)
        EXPECT_EQ(read("reviews", "rating", QString::fromUtf8(row.value)).rating, row.expected) << row.value;

    for (const char* broken : {"-1", "2.5", "many", "99999999999999999999"})
        EXPECT_FALSE(read("reviews", "rating_count", QString::fromUtf8(broken)).ratingCount) << broken;
    EXPECT_EQ(read("reviews", "rating_count", QStringLiteral(" 0 ")).ratingCount, 0);
    EXPECT_EQ(read("reviews", "rating_count", QStringLiteral("5000000000")).ratingCount, 2147483647);
}

TEST(ProductMetafieldsTest, ReviewsAreReadUnderTheirFieldNames)
{
    const ProductMetafields fields = custom("reviews", R"json({"total":"212","totalLabel":"212 reviews",
        "goodRateLabel":"98 %","badge":"Top","footer":"From buyers","mediaCount":3,"appendCount":-4,
        "tagSummary":[{"tag":"True to size","count":86},{"count":2},"x"],
        "reviews":[
            {"id":9007199254740993,"user":"Ines M.","date":"14 Oct","sku":"M","content":"Falls <i>well</i>.\n\n\nBuy.",
             "isDefaultGood":false,"images":["https://img.example/a.jpg","//img.example/b.jpg","javascript:alert(1)",
             "http://img.example/c.jpg","https://",7],"rating":"4.5","tags":["Soft",""],"likeCount":1e99,"replyCount":2.9,
             "appendReview":"Still good","appendImages":["https://img.example/d.jpg"],"appendDays":30,
             "country":"Portugal","iso2":"PT","replies":["Thanks",null]},
            {"id":"empty","user":"Nobody"}, null, {"rating":77}, {"isDefaultGood":true}]})json");
    ASSERT_TRUE(fields.reviews);
    const BuyerReviewData& data = *fields.reviews;
    EXPECT_EQ(data.appendCount, 0);
    EXPECT_EQ(data.tagSummary, (QList<ReviewTag>{{QStringLiteral("True to size"), 86}}));
    ASSERT_EQ(data.reviews.size(), 3);
    const BuyerReview& review = data.reviews[0];
    EXPECT_EQ(joined({review.id, review.user, review.date, review.sku, review.country, review.iso2}),
              "9007199254740993|Ines M.|14 Oct|M|Portugal|PT");
    EXPECT_EQ(review.content, QStringLiteral("Falls <i>well</i>.\n\nBuy."));
    EXPECT_EQ(joined(review.images), "https://img.example/a.jpg|https://img.example/b.jpg");
    EXPECT_EQ(review.rating, 4.5);
    EXPECT_EQ(review.likeCount, 2147483647);
    EXPECT_EQ(review.replyCount, 2);
    EXPECT_EQ(joined(review.tags + review.appendImages + review.replies), "Soft|https://img.example/d.jpg|Thanks");
    EXPECT_EQ(data.reviews[1].rating, 5);
    EXPECT_TRUE(data.reviews[2].isDefaultGood);
}

TEST(ProductMetafieldsTest, HostileSizesAreBounded)
{
    // 5000 pieces, the last without its comma.
    const auto many = [](const char* before, const char* piece, const char* after) {
        return QString::fromUtf8(before) + QString::fromUtf8(piece).repeated(5000).chopped(1) +
               QString::fromUtf8(after);
    };
    const auto specs = [](const QString& value) {
        return read("custom", "specs", value);
    };
    const auto highlights = [](const QString& value) {
        return read("custom", "highlights", value).highlights;
    };

    EXPECT_EQ(specs(many("[", R"({"key":"a","value":"b"},)", "]")).specs.size(), 200);
    EXPECT_EQ(specs(many(R"({"sizeTables":[)", R"({"rows":[["a"]]},)", "]}")).sizeSections.size(), 20);
    const auto rows = specs(many(R"({"sizeTables":[{"rows":[)", R"(["a"],)", "]}]}")).sizeSections[0].rows;
    EXPECT_EQ(rows.size(), 200);
    const auto columns = specs(many(R"({"sizeTables":[{"rows":[[)", R"("a",)", "]]}]}")).sizeSections[0].rows[0];
    EXPECT_EQ(columns.size(), 40);
    const QString row = u'[' + QStringLiteral(R"("a",)").repeated(40).chopped(1) + QStringLiteral("],");
    const QString tableOf400 = QStringLiteral(R"({"rows":[)") + row.repeated(10).chopped(1) + QStringLiteral("]},");
    const QString tables =
        QStringLiteral(R"({"sizeTables":[)") + tableOf400.repeated(4).chopped(1) + QStringLiteral("]}");
    EXPECT_EQ(specs(tables).sizeSections.size(), 2);
    EXPECT_TRUE(specs(many("", "[[", "]")).specs.isEmpty());

    const auto reviews = read("custom", "reviews", many(R"({"reviews":[)", R"({"rating":5},)", "]}")).reviews;
    EXPECT_EQ(reviews.value_or(BuyerReviewData{}).reviews.size(), 500);
    EXPECT_FALSE(
        read("custom", "reviews", many(R"({"total":1,"x":")", QByteArray(1000, 'a').constData(), "\"}")).reviews);

    EXPECT_EQ(highlights(many("", "a\n", "")).size(), 200);
    EXPECT_EQ(highlights(many("[", R"("a",)", "]")).size(), 200);
    // The cut falls between characters.
    EXPECT_EQ(highlights(many("[\"a", "😀", " \"]")).value(0).size(), 999);
    EXPECT_LE(read("custom", "presale", many("", "a\n", "")).presale.value_or(QString()).size(), 8000);
}

} // namespace loom
