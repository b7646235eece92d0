#include "MiraFixture.h"

#include <QAbstractItemModelTester>

#include <random>

using namespace loom;
using namespace std::chrono_literals;

namespace
{

class MiraThreadModelTest : public MiraFixture
{
protected:
    [[nodiscard]] static MiraEntry entry(const QString& key, const QString& body = {})
    {
        return {.key = key, .message = {.serverID = key, .body = body}};
    }
    [[nodiscard]] static std::vector<MiraEntry> entries(const QStringList& keys)
    {
        std::vector<MiraEntry> list;
        for (const QString& key : keys)
            list.push_back(entry(key));
        return list;
    }
    [[nodiscard]] QStringList keys(const MiraThreadModel& model) const
    {
        QStringList list;
        for (int row = model.count() - 1; row >= 0; --row)
            list.append(model.data(model.index(row), MiraThreadModel::KeyRole).toString());
        return list;
    }
    /// The cards of a row: "handle=title@price", with "!" for one that is live and "-" for one that is sold out.
    [[nodiscard]] std::string cards(const QVariant& value)
    {
        QStringList list;
        for (const QVariant& element : value.toList()) {
            const auto card = element.value<MiraCard>();
            list.append(card.handle + u'=' + card.title + u'@' + card.priceText +
                        (card.isLive ? QStringLiteral("!") : QString()) +
                        (card.isSoldOut ? QStringLiteral("-") : QString()));
        }
        return list.join(u' ').toStdString();
    }
    /// Looks at a row's cards, and waits for the catalog's word on them.
    void look(int row)
    {
        const auto isPending = [this, row] {
            const QVariantList cards = told(row, MiraThreadModel::CardsRole).toList();
            return std::ranges::any_of(cards, [](const QVariant& card) { return card.value<MiraCard>().isPending; });
        };
        EXPECT_TRUE(isPending());
        clock.advance(20ms);
        waitUntil([&isPending] { return !isPending(); }, "the catalog");
    }

    MiraCards pieces{api, market, money, clock};
};

} // namespace

TEST_F(MiraThreadModelTest, AnyThreadBecomesAnyOtherAndWhatStaysInItsOrderStays)
{
    MiraThreadModel model(pieces, dates, clock);
    const QAbstractItemModelTester tester(&model, QAbstractItemModelTester::FailureReportingMode::Fatal);
    std::mt19937 chance(7); // NOLINT: the same every time
    QStringList all;
    for (int i = 0; i < 12; ++i)
        all.append(QString::number(i));
    for (int round = 0; round < 200; ++round) {
        QStringList wanted = all;
        std::ranges::shuffle(wanted, chance);
        wanted = wanted.mid(0, static_cast<qsizetype>(chance() % 13));
        model.show(entries(wanted));
        ASSERT_EQ(keys(model), wanted);
    }
    model.show(entries(all));
    const auto removed = emissions(model, &QAbstractItemModel::rowsRemoved);
    const auto inserted = emissions(model, &QAbstractItemModel::rowsInserted);
    QStringList moved = all;
    moved.move(0, 11);
    model.show(entries(moved));
    EXPECT_EQ(std::pair(*removed, *inserted), std::pair(1, 1));
    model.show(entries(moved));
    EXPECT_EQ(std::pair(*removed, *inserted), std::pair(1, 1));
}

TEST_F(MiraThreadModelTest, ADayIsNamedOnceAndByWhatItIsToday)
{
    MiraThreadModel model(pieces, dates, clock);
    std::vector<MiraEntry> list = entries(
        {QStringLiteral("a"), QStringLiteral("b"), QStringLiteral("c"), QStringLiteral("d"), QStringLiteral("e")});
    const QDateTime now = clock.now();
    const std::array<QDateTime, 5> times{now.addDays(-40), now.addDays(-1), now.addDays(-1).addSecs(60), now,
                                         QDateTime()};
    for (std::size_t i = 0; i < list.size(); ++i)
        list[i].message.createdAt = times.at(i);
    model.show(list);
    QStringList labels;
    for (int row = 4; row >= 0; --row)
        labels.append(model.data(model.index(row), MiraThreadModel::DayLabelRole).toString());
    EXPECT_EQ(labels, QStringList({dates.day(times[0]), QStringLiteral("Yesterday"), QString(), QStringLiteral("Today"),
                                   QString()}));
}

TEST_F(MiraThreadModelTest, CardsAreOfTheCatalogAndAPieceItDoesNotKnowHasNone)
{
    note(false, QStringLiteral("Look:\n/products/linked\nand /products/gone too"),
         {QJsonObject{{QStringLiteral("handle"), QStringLiteral("own")},
                      {QStringLiteral("title"), QStringLiteral("Own title")},
                      {QStringLiteral("price"), QStringLiteral("40.5")},
                      {QStringLiteral("reason"), QStringLiteral("It is warm.")}},
          QJsonObject{{QStringLiteral("handle"), QStringLiteral("words")},
                      {QStringLiteral("title"), QStringLiteral("Words")},
                      {QStringLiteral("price"), QStringLiteral("about forty")}}});
    open();
    EXPECT_EQ(told(0, MiraThreadModel::TextRole).toString(), QStringLiteral("Look:\nand /products/gone too"));
    EXPECT_EQ(cards(told(0, MiraThreadModel::CardsRole)),
              "own=Own title@$40.50 words=Words@about forty linked=@ gone=@");
    // All of them in one question.
    QJsonObject soldOut = cardJson(QStringLiteral("words"));
    soldOut.insert(QStringLiteral("availableForSale"), false);
    answer("ProductsByHandles", QJsonObject{{QStringLiteral("p0"), cardJson(QStringLiteral("own"))},
                                            {QStringLiteral("p1"), soldOut},
                                            {QStringLiteral("p2"), cardJson(QStringLiteral("linked"))},
                                            {QStringLiteral("p3"), QJsonValue::Null}});
    look(0);
    const auto live = told(0, MiraThreadModel::CardsRole).toList();
    ASSERT_EQ(live.size(), 3);
    EXPECT_EQ(live.at(0).value<MiraCard>().reason, QStringLiteral("It is warm."));
    EXPECT_TRUE(live.at(0).value<MiraCard>().isLive);
    EXPECT_TRUE(live.at(1).value<MiraCard>().isSoldOut);
    EXPECT_EQ(live.at(2).value<MiraCard>().handle, QStringLiteral("linked"));
    EXPECT_EQ(lastVariables().value(QStringLiteral("h3")), QStringLiteral("gone"));

    // In another language they are asked for anew, and shown until they come.
    const std::string known = cards(told(0, MiraThreadModel::CardsRole));
    answer("ProductsByHandles", Answer::body("", 404));
    answer("Countries", Answer::body("", 404));
    const std::size_t before = server.requests().size();
    market.setLanguage(AppLanguage::German);
    EXPECT_EQ(cards(told(0, MiraThreadModel::CardsRole)), known);
    clock.advance(20ms);
    waitUntil([&] { return server.requests().size() == before + 2 && !market.isLoadingCountries(); },
              "they are asked for");
    settle();
    EXPECT_EQ(cards(told(0, MiraThreadModel::CardsRole)), known);

    // Another market asks anew; a catalog that fails leaves the reply's own words, and is asked again with the thread.
    answer("ProductsByHandles", Answer::body("", 404));
    answer("RateSample US", Answer::body("", 404));
    answer("RateSample DE", Answer::body("", 404));
    market.setCountry(QStringLiteral("DE"));
    look(0);
    EXPECT_EQ(cards(told(0, MiraThreadModel::CardsRole)),
              "own=Own title@$40.50 words=Words@about forty linked=linked@ gone=gone@");
    mira->refresh();
    settle();
    answer("ProductsByHandles", QJsonObject{});
    look(0);
    EXPECT_EQ(cards(told(0, MiraThreadModel::CardsRole)), "");
}
