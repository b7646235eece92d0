#include "stylist/MiraRules.h"
#include "stylist/MiraFailure.h"
#include "stylist/MiraMessage.h"
#include "stylist/SizeOption.h"

#include "support/Printing.h"

#include "catalog/Product.h"

#include <QElapsedTimer>

namespace loom
{

namespace
{

MiraMessage message(const QString& body, MiraDirection direction)
{
    return {.serverID = QStringLiteral("1"), .direction = direction, .body = body, .attachments = {}, .createdAt = {}};
}

struct TextRow {
    const char* why;
    QString body;
    QString shown;
    QString handles;
};

void expectRows(const std::vector<TextRow>& rows, MiraDirection direction)
{
    for (const TextRow& row : rows) {
        EXPECT_EQ(MiraRules::shownText(message(row.body, direction)), row.shown) << row.why;
        EXPECT_EQ(MiraRules::productHandles(message(row.body, direction)).join(u' '), row.handles) << row.why;
    }
}

} // namespace

TEST(MiraRulesTest, AReplyShowsItsWordsAndItsLinksAsCards)
{
    expectRows(
        {{"plain", "For work.", "For work.", ""},
         {"a path alone, with blanks about it", " \t/products/silk-dress \t", "", "silk-dress"},
         {"a path line goes with its end", "One:\n/products/a\nTwo:\n/products/b", "One:\nTwo:", "a b"},
         {"what surrounds it closes up", "One\n\n/products/a\n\nTwo", "One\n\nTwo", "a"},
         {"a deeper path, a query", "/products/a/b\n/products/c?x=1", "/products/a/b\n/products/c?x=1", "a c"},
         {"a path in a sentence stays", "See /products/a.", "See /products/a.", "a"},
         {"links end where a handle does",
          "(https://shop.example/products/a) **/products/b**, \"/products/c\", /products/ä-ö!",
          "(https://shop.example/products/a) **/products/b**, \"/products/c\", /products/ä-ö!", "a b c ä-ö"},
         {"longer than any handle", "/products/" + QString(256, u'a'), "/products/" + QString(256, u'a'), ""},
         {"nothing that could be a handle", "/products/...\n/products/", "/products/...\n/products/", ""},
         {"each product once", "/products/a /products/b /products/a", "/products/a /products/b /products/a", "a b"},
         {"two empty lines and more", "a\n\n\n\nb\n\nc\nd", "a\n\nb\n\nc\nd", ""},
         {"line ends of others", "a\r\n\r\n\r\nb\rc", "a\n\nb\nc", ""},
         {"markup is text", "<b>&amp;</b>", "<b>&amp;</b>", ""},
         {"control and override characters",
          QString::fromUtf8("a\u202Eb\x01"
                            "c\u2066"),
          "abc", ""},
         {"half a character", QStringLiteral("a\n\n\n") + QChar(0xd83d), QStringLiteral("a\n\n\uFFFD"), ""},
         {"a reply may speak of blocks", "a\n[Weather: 3]", "a\n[Weather: 3]", ""}},
        MiraDirection::Inbound);
}

TEST(MiraRulesTest, TheShoppersMessageEndsWhereTheContextBegins)
{
    expectRows({{"product", "Hi\n/products/a", "Hi", "a"},
                {"wardrobe", "Hi\n\n[MY WARDROBE — x: /products/b [top]]\n[Weather: 3]", "Hi", ""},
                {"look", "Hi\n[Build the look around: X]\n[Weather: 3]", "Hi", ""},
                {"weather, without words", "\n[Weather: 3°C Mild]", "", ""},
                {"the first counts", "a\n[Weather: 1]\nb\n[Weather: 2]", "a", ""},
                {"within a line it is words", "a [Weather: 3]", "a [Weather: 3]", ""},
                {"another block is words", "a\n[Weather 3]", "a\n[Weather 3]", ""},
                {"letters count", "a\n[weather: 3]", "a\n[weather: 3]", ""},
                {"half a character", QChar(0xd83d) + QStringLiteral("a\n[Weather: 3]"), QStringLiteral("\uFFFDa"), ""}},
               MiraDirection::Outbound);
    // What is cut is cut where it stands, whatever else is wrong with the text.
    const QString broken = QStringLiteral("\x01😀") + QChar(0xd83d) + u'a';
    EXPECT_EQ(MiraRules::withoutContext(broken + QStringLiteral("\n[Weather: 3]")), broken);
}

TEST(MiraRulesTest, MeasurementsAreOfferedWhenTheyAreAskedFor)
{
    struct Row {
        QString text;
        bool asks;
        bool speaks;
    };
    const QString forty(40, u'x');
    const Row rows[] = {
        {"What is your Height?", true, true},
        {"Your height matters.", false, true},
        {"Height" + forty + "?", true, true},
        {"Height" + forty + "x?", false, true},
        {"Height\n?", false, true},
        {"Bust, if you like?", true, false},
        {"Please share your measurements", true, true},
        {"TELL ME YOUR SIZE", true, false},
        {"tell me your weight", false, true},
        {"您的身高和体重?", true, true},
        {"三围?", true, false},
        {"体重", false, true},
        {"A ruler measured it", false, true},
        {"What colour?", false, false},
        {QChar(0xdc00) + QStringLiteral("height?"), true, true},
    };
    for (const Row& row : rows) {
        EXPECT_EQ(MiraRules::asksForMeasurements(row.text), row.asks) << row.text.toStdString();
        EXPECT_EQ(MiraRules::speaksOfMeasurements(row.text), row.speaks) << row.text.toStdString();
    }
}

TEST(MiraRulesTest, HugeTextsTakeNoLongerThanTheirLength)
{
    QElapsedTimer timer;
    timer.start();
    for (const char* const unit :
         {"height", "height ", "\n", "\n\n\n\n", "/products/", "/products/a\n", " ", "\n[", "a"}) {
        const QString body = QString::fromLatin1(unit).repeated(1'000'000 / static_cast<qsizetype>(qstrlen(unit)));
        for (const MiraDirection direction : {MiraDirection::Inbound, MiraDirection::Outbound}) {
            static_cast<void>(MiraRules::shownText(message(body, direction)));
            EXPECT_LE(MiraRules::productHandles(message(body, direction)).size(), MiraRules::maximumLinks);
        }
        EXPECT_FALSE(MiraRules::asksForMeasurements(body));
        static_cast<void>(MiraRules::speaksOfMeasurements(body));
    }
    EXPECT_LT(timer.elapsed(), 20'000) << "some pattern backtracks";
}

TEST(MiraRulesTest, APatternThatDoesNotCompileMatchesNothing)
{
    const QRegularExpression broken = MiraRules::compiled(QStringLiteral("("));
    EXPECT_TRUE(broken.isValid());
    EXPECT_FALSE(broken.match(QStringLiteral("(")).hasMatch());
}

TEST(MiraRulesTest, PricesAndLanguagesAreReadStrictly)
{
    EXPECT_EQ(MiraRules::dollars(QStringLiteral(" 120.50 ")), 120.5);
    EXPECT_EQ(MiraRules::dollars(QStringLiteral("0")), 0);
    for (const char* const words : {"", "$120", "1e3", "nan", "-1", "1,200", "120.", "From 80", "1234567890123"})
        EXPECT_EQ(MiraRules::dollars(QString::fromUtf8(words)), std::nullopt) << words;
    EXPECT_EQ(MiraRules::replyLanguage("zh-Hant", "en"), "zh-Hant");
    EXPECT_EQ(MiraRules::replyLanguage("auto", "fr"), "fr");
    EXPECT_EQ(MiraRules::replyLanguage("tlh", "fr"), "fr");
}

TEST(MiraFailureTest, EveryFailureHasItsCodeAndItsSentence)
{
    struct Row {
        APIError error;
        QString code;
        QString sentence;
    };
    const auto http = [](int status, const char* code) {
        return APIError{APIError::Http{.status = status, .code = code ? std::optional<QString>(code) : std::nullopt}};
    };
    const QString trouble = QStringLiteral("LOOMSTREET is having trouble right now.");
    const QString unreached = QStringLiteral("Couldn't reach LOOMSTREET.");
    const Row rows[] = {
        {{APIError::Offline{}}, "OFFLINE", "You appear to be offline."},
        {{APIError::Timeout{}}, "NETWORK_TIMEOUT", "Mira took too long to respond."},
        {{APIError::Network{}}, "GENERIC_FAILED", unreached},
        {{APIError::Decoding{}}, "GENERIC_FAILED", unreached},
        {{APIError::NotConfigured{}}, "GENERIC_FAILED", unreached},
        {http(429, "RATE_LIMITED"), "RATE_LIMITED", "You're sending messages too quickly. Wait a moment first."},
        {http(503, "RATE_LIMITED"), "RATE_LIMITED", "You're sending messages too quickly. Wait a moment first."},
        {http(400, "BAD_INPUT"), "BAD_INPUT", "This message couldn't be sent as written."},
        {http(500, "NETWORK_TIMEOUT"), "NETWORK_TIMEOUT", "Mira took too long to respond."},
        {http(499, "TEAPOT"), "TEAPOT", unreached},
        {http(500, "TEAPOT"), "TEAPOT", trouble},
        {http(404, nullptr), "GENERIC_FAILED", unreached},
        {http(502, ""), "GENERIC_FAILED", trouble},
    };
    for (const Row& row : rows) {
        const MiraFailure failure = miraFailure(row.error);
        EXPECT_EQ(failure.code, row.code);
        EXPECT_EQ(errorDescription(failure), row.sentence) << row.code.toStdString();
    }
    EXPECT_EQ(errorDescription(MiraFailure{.code = QStringLiteral("EXPIRED")}), unreached);
}

TEST(SizeOptionTest, TheSizeOptionIsFoundInEveryLanguageOfTheStore)
{
    const auto names =
        QStringLiteral("size Size EU-SIZES 尺码 尺寸 尺碼 サイズ 사이즈 TAILLE Größe GRÖSSE GRÖẞE Talla taglia "
                       "Tamanho maat Размер storlek Størrelse Rozmiar beden ขนาด Kích Ukuran saiz مقاس מידה")
            .split(u' ');
    for (const QString& name : names) {
        EXPECT_TRUE(isSizeOption(name)) << name.toStdString();
        EXPECT_TRUE(isSizeOption(name.normalized(QString::NormalizationForm_D))) << name.toStdString();
    }
    for (const char* const name : {"", "Colour", "Farbe", "Length", "颜色"})
        EXPECT_FALSE(isSizeOption(QString::fromUtf8(name))) << name;

    Product product;
    EXPECT_EQ(sizeOption(product), nullptr);
    product.options = {{"Colour", {"Ink"}}, {"Taille", {"S"}}, {"Size", {"M"}}};
    EXPECT_EQ(sizeOption(product), &product.options[1]);

    EXPECT_EQ(matchingSize({"XS", "s", "S"}, "S"), "S");
    EXPECT_EQ(matchingSize({"XS", "S "}, " s"), "S ");
    EXPECT_EQ(matchingSize({"XS", ""}, ""), std::nullopt);
    EXPECT_EQ(matchingSize({"XS"}, "XXS"), std::nullopt);
}

} // namespace loom
