#include "commerce/SuggestionsModel.h"

#include "catalog/RecentSearches.h"

#include "support/ShopFixture.h"

using namespace loom;
using namespace std::chrono_literals;
using testing::ElementsAre;

namespace
{

const char* const suggest = "Suggest";

ProductHit piece(const char* handle, const char* title, const char* vendor = "Tallis & Rook")
{
    return {.id = {},
            .handle = QLatin1String(handle),
            .title = QString::fromUtf8(title),
            .vendor = QString::fromUtf8(vendor),
            .imageURL = {}};
}

/// What stands in the places of a section, "-" in a free one, without the free ones behind the last.
std::vector<std::string> rows(const SuggestionSlots* section)
{
    std::vector<std::string> texts;
    for (int i = 0; i < section->rowCount(); ++i) {
        const Suggestion* const row = section->at(i);
        texts.push_back(row ? row->text.toStdString() : "-");
    }
    while (!texts.empty() && texts.back() == "-")
        texts.pop_back();
    return texts;
}

class SuggestionsModelTest : public ShopFixture
{
protected:
    SuggestionsModelTest()
    {
        model.prepare();
        waitUntil([this] { return model.pieces()->filled() > 0; }, "the pieces are prepared");
    }
    void type(const char* text) { model.setText(QString::fromUtf8(text)); }
    void settle()
    {
        clock.advance(SuggestionsModel::pause);
        waitUntil([this] { return model.isAnswered(); }, "the store has answered");
    }
    static QJsonValue found(const char* queries, const char* products = "[]", const char* collections = "[]")
    {
        const QByteArray text = QByteArray(R"({"predictiveSearch": {"queries": )") + queries + R"(, "products": )" +
                                products + R"(, "collections": )" + collections + "}}";
        return json(text.constData());
    }

    RecentSearches searches{preferences};
    std::vector<ProductHit> known{piece("slip", "Sabine bias slip dress"), piece("bag", "Lune crescent bag"),
                                  piece("drape", "Sílk drape top", "Müller & Søn")};
    SuggestionsModel model{api, market, searches, [this] { return known; }, clock};
};

TEST_F(SuggestionsModelTest, WhatIsKnownHereIsThereWithTheKeyAndTheStoreIsAskedAfterAPause)
{
    EXPECT_THAT(rows(model.pieces()), ElementsAre("Sabine bias slip dress", "Lune crescent bag", "Sílk drape top"));
    for (const char* const text : {"d", "dr", "SILK dr", "soen", "son dra", "muller silk"})
        type(text);
    EXPECT_THAT(rows(model.pieces()), ElementsAre("Sílk drape top"));
    type("ress");
    EXPECT_THAT(rows(model.pieces()), ElementsAre()); // inside a word is not its beginning
    type("dr");
    EXPECT_THAT(rows(model.pieces()), ElementsAre("Sabine bias slip dress", "Sílk drape top"));
    EXPECT_THAT(rows(model.queries()), ElementsAre("dr"));
    clock.advance(SuggestionsModel::pause - 1ms);
    EXPECT_EQ(sent(), 0U);
    answer(suggest, found(R"([{"text": "DR"}, {"text": "silk dress"}, {"text": "typed"}])"));
    settle();
    EXPECT_EQ(lastVariables().value(QStringLiteral("q")).toString(), QStringLiteral("dr"));
    EXPECT_THAT(rows(model.queries()), ElementsAre("dr", "silk dress", "typed"));
    EXPECT_EQ(model.queries()->at(1)->emphasis, (TextSpan{.start = 5, .length = 2}));
    EXPECT_EQ(sent(), 1U);
}

TEST_F(SuggestionsModelTest, AnAnswerMovesNoRowThatIsThere)
{
    type("dr");
    answer(suggest, found(R"([{"text": "silk dress"}, {"text": "drape"}, {"text": "wool dress"}])",
                          R"([{"id": "1", "handle": "new", "title": "New dress"}])"));
    settle();
    EXPECT_THAT(rows(model.pieces()), ElementsAre("Sabine bias slip dress", "Sílk drape top", "New dress"));
    model.move(1);
    model.move(1);
    model.move(1);
    EXPECT_EQ(model.currentText(), QStringLiteral("wool dress"));

    // The same text asked again, as after a change of market: one is gone, one is new, one keeps its place.
    answer("Countries", Answer::body("", 404));
    answer(suggest, found(R"([{"text": "wool dress"}, {"text": "dress"}])",
                          R"([{"id": "2", "handle": "other", "title": "Other dress"},
                              {"id": "3", "handle": "slip", "title": "Sabine bias slip dress"}])"));
    market.setLanguage(AppLanguage::French);
    clock.advance(SuggestionsModel::pause);
    waitUntil([this] { return model.queries()->filled() == 3; }, "the store has answered again");
    EXPECT_THAT(rows(model.queries()), ElementsAre("dr", "dress", "-", "wool dress"));
    EXPECT_EQ(model.currentText(), QStringLiteral("wool dress"));
    EXPECT_THAT(rows(model.pieces()), ElementsAre("Sabine bias slip dress", "Sílk drape top", "Other dress"));

    // What comes into the place of the chosen row was not chosen.
    answer("Countries", Answer::body("", 404));
    answer(suggest, found(R"([{"text": "gown"}, {"text": "robe"}, {"text": "dress"}])"));
    market.setLanguage(AppLanguage::German);
    clock.advance(SuggestionsModel::pause);
    waitUntil([this] { return model.queries()->filled() == 4; }, "the store has answered once more");
    EXPECT_THAT(rows(model.queries()), ElementsAre("dr", "dress", "gown", "robe"));
    EXPECT_EQ(model.currentSection(), SuggestionsModel::None);

    // With the next key the shopper acts: then the gaps close.
    type("dre");
    EXPECT_THAT(rows(model.queries()), ElementsAre("dre", "dress", "gown", "robe"));
}

TEST_F(SuggestionsModelTest, AFailureLeavesWhatIsKnownHereAndAnOldAnswerIsDropped)
{
    searches.add(QStringLiteral("camel coat"));
    searches.add(QStringLiteral("dress"));
    type("dr");
    EXPECT_THAT(rows(model.recents()), ElementsAre("dress", "camel coat"));
    answer(suggest, found(R"([{"text": "dress shirt"}, {"text": "gown"}])"));
    settle();
    type("dre");
    EXPECT_THAT(rows(model.queries()), ElementsAre("dre", "dress shirt", "gown")); // until it is known better
    answer(suggest, Answer::body("", 404));
    settle();
    EXPECT_THAT(rows(model.queries()), ElementsAre("dre", "dress shirt"));
    EXPECT_THAT(rows(model.pieces()), ElementsAre("Sabine bias slip dress"));

    answer(suggest, envelope(found(R"([{"text": "late"}])")).pauseAfter(0));
    type("dres");
    clock.advance(SuggestionsModel::pause);
    server.waitForRequests(3);
    type("");
    server.proceed();
    drainEvents();
    EXPECT_THAT(rows(model.queries()), ElementsAre());
    EXPECT_THAT(rows(model.recents()), ElementsAre("dress", "camel coat"));
    type("https://example.com/products/silk");
    clock.advance(1h);
    EXPECT_TRUE(model.isLink());
    EXPECT_THAT(rows(model.recents()), ElementsAre());
    EXPECT_EQ(sent(), 3U);
}

TEST_F(SuggestionsModelTest, RecentSearchesAreKeptNewestFirstEachOnceAndTenAtMost)
{
    for (int i = 0; i < 12; ++i)
        searches.add(QStringLiteral("search %1").arg(i));
    searches.add(QStringLiteral("  Séarch\n5 "));
    searches.add(QStringLiteral(" "));
    const RecentSearches next(preferences);
    ASSERT_EQ(next.list().size(), RecentSearches::maximum);
    EXPECT_EQ(next.list().mid(0, 2), QStringList({QStringLiteral("Séarch 5"), QStringLiteral("search 11")}));
    EXPECT_EQ(next.list().count(QStringLiteral("search 5")), 0);
}

} // namespace
