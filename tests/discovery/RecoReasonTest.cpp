#include "discovery/HanSpacing.h"
#include "discovery/RecoProduct.h"

#include "support/Json.h"
#include "support/Printing.h"

#include <QCoreApplication>
#include <QTranslator>
#include <gtest/gtest.h>

using namespace loom;

namespace
{

/// Says of every text which key it was looked up by, and where its parameter stands.
class KeyTranslator final : public QTranslator
{
public:
    [[nodiscard]] QString translate(const char*, const char* source, const char* key, int) const override
    {
        const bool isPattern = QLatin1String(source).contains(QLatin1String("%1"));
        return QStringLiteral("<") + QString::fromLatin1(key).mid(5) +
               (isPattern ? QStringLiteral(" %1>") : QStringLiteral(">"));
    }
    [[nodiscard]] bool isEmpty() const override { return false; }
};

struct Case {
    const char* json;
    AppLanguage language;
    const char* text; ///< null for none
};

RecoReason reason(const char* text)
{
    auto read = decodeJson(text, decodeRecoReason);
    EXPECT_TRUE(read) << text;
    return *read;
}

std::string rendered(const RecoReason& reason, AppLanguage language)
{
    return reason.render(language).value_or(QStringLiteral("nothing")).toStdString();
}

TEST(RecoReasonTest, EveryRuleChoosesItsText)
{
    using enum AppLanguage;
    const std::array cases{
        Case{R"({"template": "similar_shoppers"})", English, "Loved by shoppers like you"},
        Case{R"({"template": "browsing"})", English, "Based on what you've been browsing"},
        Case{R"({"template": "handpicked"})", French, "Handpicked"},
        Case{R"({"template": "trending"})", English, "Trending now"},
        Case{R"({"template": "new_in", "newIn": true})", English, "New this week"},
        Case{R"({"template": "Trending"})", English, "nothing"},
        Case{R"({"template": ""})", English, "nothing"},

        Case{R"({"template": "matches_search"})", English, "Handpicked"},
        Case{R"({"template": "matches_search", "params": {"value": " "}, "newIn": true})", English, "Handpicked"},
        Case{R"({"template": "matches_search", "params": {"value": "Blue %1 <b>"}})", French,
             "Matches your search for Blue %1 <b>"},

        Case{R"({"template": "because_like"})", English, "Based on what you love"},
        Case{R"({"template": "because_like", "params": {"value": "Tallis & Rook"}})", English,
             "Because you love Tallis & Rook"},
        Case{R"({"template": "because_like", "params": {"value": "Tallis & Rook"}})", French, "Based on what you love"},
        Case{R"({"template": "because_like", "params": {"value": "Y2K"}})", French, "Because you love Y2K"},

        Case{R"({"template": "for_occasion", "params": {"value": "WORK"}})", English, "For WORK"},
        Case{R"({"template": "for_occasion", "params": {"value": "Gym"}})", French, "For the gym"},
        Case{R"({"template": "for_occasion", "params": {"value": "siege"}})", French, "Handpicked"},
        Case{R"({"template": "for_occasion", "params": {"value": "siege"}, "newIn": true})", French, "New this week"},
        Case{R"({"template": "for_occasion"})", English, "Handpicked"},
        Case{R"({"template": "for_occasion", "params": {"value": "gothic"}})", French, "Handpicked"},

        Case{R"({"template": "style_pick", "params": {"value": "Minimalist"}})", English, "Minimalist style pick"},
        Case{R"({"template": "style_pick", "params": {"value": "Minimalist"}})", French, "minimal style pick"},
        Case{R"({"template": "style_pick", "newIn": true})", English, "New this week"},
        Case{R"({"template": "style_pick", "params": {"value": "minimal "}})", French, "Handpicked"},
        Case{R"({"template": "style_pick", "params": {"value": "wedding"}})", French, "Handpicked"},

        // A label counts only in the language of the window, which English never asks for.
        Case{
            R"({"template": "style_pick", "params": {"value": "x"}, "paramLabel": {"value": "复古", "locale": "zh-CN"}})",
            ZhHans, "复古 style pick"},
        Case{
            R"({"template": "style_pick", "params": {"value": "x"}, "paramLabel": {"value": "復古", "locale": "zh_TW"}})",
            ZhHant, "復古 style pick"},
        Case{
            R"({"template": "style_pick", "params": {"value": "x"}, "paramLabel": {"value": "復古", "locale": "zh-TW"}})",
            ZhHans, "Handpicked"},
        Case{R"({"template": "style_pick", "params": {"value": "goth"}, "paramLabel": {"value": "x", "locale": "de"}})",
             French, "gothic style pick"},
        Case{R"({"template": "style_pick", "params": {"value": "x"}, "paramLabel": {"value": "y", "locale": "pt-BR"}})",
             Portuguese, "y style pick"},
        Case{R"({"template": "style_pick", "params": {"value": "x"}, "paramLabel": {"value": "y"}})", French,
             "Handpicked"},
        Case{R"({"template": "style_pick", "params": {"value": "x"}, "paramLabel": {"value": "y", "locale": "en"}})",
             English, "x style pick"},
        Case{R"({"template": "style_pick", "paramLabel": {"value": "y", "locale": "fr"}})", French, "Handpicked"},

        // What is of another type is not there.
        Case{R"({"template": "style_pick", "params": "x", "newIn": "yes", "paramLabel": []})", English, "Handpicked"},
        Case{R"({"template": "matches_search", "params": {"value": 7}})", English, "Handpicked"},
    };
    for (const Case& one : cases)
        EXPECT_EQ(rendered(reason(one.json), one.language), one.text) << one.json;
}

TEST(RecoReasonTest, EveryTextIsLookedUpByItsKey)
{
    KeyTranslator translator;
    QCoreApplication::installTranslator(&translator);
    const auto keys = [](const char* name, const char* value) {
        RecoReason reason{.templateName = QLatin1String(name), .value = QLatin1String(value)};
        return rendered(reason, AppLanguage::French);
    };
    for (const char* const name : {"similar_shoppers", "browsing", "handpicked", "trending", "new_in"})
        EXPECT_EQ(keys(name, "x"), std::string("<reason.") + name + ">");
    EXPECT_EQ(keys("matches_search", "x"), "<reason.matches_search x>");
    EXPECT_EQ(keys("because_like", "x"), "<reason.because_like.generic>");
    for (const auto& [word, key] :
         std::initializer_list<std::pair<const char*, const char*>>{{"Retro", "vintage"},
                                                                    {"minimalist", "minimal"},
                                                                    {"streetwear", "street"},
                                                                    {"goth", "gothic"},
                                                                    {"bohemian", "boho"},
                                                                    {"athleisure", "sporty"},
                                                                    {"new chinese", "chinese"},
                                                                    {"neo-chinese", "chinese"},
                                                                    {"old money", "old-money"},
                                                                    {"academia", "dark-academia"},
                                                                    {"office", "workwear"},
                                                                    {"glamorous", "glam"},
                                                                    {"avant garde", "avant-garde"},
                                                                    {"vacation", "resort"},
                                                                    {"festival", "festival"},
                                                                    {"formal", "formal"},
                                                                    {"y2k", "y2k"}}) {
        EXPECT_EQ(keys("style_pick", word), std::string("<reason.style_pick <style.") + key + ">>");
        EXPECT_EQ(keys("because_like", word), std::string("<reason.because_like <style.") + key + ">>");
    }
    for (const auto& [word, key] :
         std::initializer_list<std::pair<const char*, const char*>>{{"Office", "work"},
                                                                    {"date night", "date"},
                                                                    {"holiday", "vacation"},
                                                                    {"resort", "vacation"},
                                                                    {"daily", "everyday"},
                                                                    {"gym", "gym"},
                                                                    {"workout", "gym"},
                                                                    {"night out", "night-out"},
                                                                    {"formal event", "formal"},
                                                                    {"formal events", "formal"},
                                                                    {"festival", "festival"}})
        EXPECT_EQ(keys("for_occasion", word), std::string("<reason.for_occasion <occasion.") + key + ">>");

    const RecoProduct piece{.handle = QStringLiteral("a"),
                            .reasonMeta = RecoReason{.templateName = QStringLiteral("trending"), .isNew = true}};
    EXPECT_EQ(piece.reasonText(AppLanguage::French).toStdString(), "<reason.new_prefix <reason.trending>>");
    QCoreApplication::removeTranslator(&translator);
}

TEST(RecoReasonTest, BlanksBetweenHanCharactersAreLeftOut)
{
    const std::array<std::pair<const char*, const char*>, 9> cases{{
        {"本周 上新", "本周上新"},
        {"本周 \u00a0 上新 款", "本周上新款"},
        {"复古 style 风", "复古 style 风"},
        {"本周 · 上新", "本周 · 上新"},
        {" 上新 ", " 上新 "},
        {"本周\u3000上新\t款", "本周\u3000上新\t款"}, // other blanks are none of these
        {"𠮷 𠮷", "𠮷𠮷"},                            // beyond the first plane
        {"ひら かな 한 글", "ひら かな 한 글"},
        {"", ""},
    }};
    for (const auto& [text, expected] : cases)
        EXPECT_EQ(withHanSpacing(QString::fromUtf8(text)).toStdString(), expected);
    const RecoReason like{.templateName = QStringLiteral("matches_search"), .value = QStringLiteral("红 裙")};
    EXPECT_EQ(rendered(like, AppLanguage::ZhHans), "Matches your search for 红裙");
}

TEST(RecoReasonTest, ACardHasAReasonWhateverTheStoreSays)
{
    struct Row {
        const char* json;
        const char* text;
    };
    const std::array rows{
        Row{R"({"reasonMeta": {"template": "trending"}, "reason": "x"})", "Trending now"},
        Row{R"({"reasonMeta": {"template": "trending", "newIn": true}})", "New this week · Trending now"},
        Row{R"({"reasonMeta": {"template": "new_in", "newIn": true}})", "New this week"},
        Row{R"({"reasonMeta": {"template": "later"}, "reason": "As  seen   in  Paris"})", "As seen  in Paris"},
        Row{R"({"reasonMeta": {"template": 7}, "reason": "Seen"})", "Seen"},
        Row{R"({"reasonMeta": {"template": "later", "newIn": true}})", "Handpicked"},
        Row{R"({"reasonMeta": "x", "isNew": true})", "New this week"},
        Row{R"({"reason": " ", "isNew": "true"})", "Handpicked"},
        Row{R"({})", "Handpicked"},
    };
    for (const Row& row : rows) {
        QJsonObject card = json(row.json).toObject();
        card.insert(QStringLiteral("handle"), QStringLiteral("a"));
        const auto product = decodeJson(bytes(card), decodeRecoProduct);
        ASSERT_TRUE(product) << row.json;
        EXPECT_EQ(product->reasonText(AppLanguage::English).toStdString(), row.text) << row.json;
        EXPECT_EQ(*decodeJson(bytes(toJson(*product)), decodeRecoProduct), *product) << row.json;
    }
    RecoProduct huge{.handle = QStringLiteral("a"),
                     .reasonMeta = RecoReason{.templateName = QStringLiteral("style_pick")}};
    huge.reasonMeta->value = QString(10'000, u'x');
    EXPECT_LE(cardOf(huge, AppLanguage::English).recoReason.value().size(), 200);
    huge.reasonMeta->value = QStringLiteral("<img src=x>\u202e");
    EXPECT_EQ(cardOf(huge, AppLanguage::English).recoReason.value().toStdString(), "<img src=x> style pick");
}

} // namespace
