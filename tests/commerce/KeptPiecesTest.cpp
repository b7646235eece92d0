#include "commerce/PriceDrop.h"
#include "commerce/RecentlyViewedStore.h"
#include "storage/DataFolder.h"

#include "support/FakeClock.h"
#include "support/Json.h"
#include "support/Printing.h"
#include "support/Running.h"

#include <QFile>
#include <QJsonArray>
#include <QTemporaryDir>

using namespace loom;
using namespace std::chrono_literals;

namespace
{

ProductListItem piece(const QString& handle, double price = 100, const QString& currency = QStringLiteral("USD"))
{
    return {.id = QStringLiteral("gid://shopify/Product/1"),
            .handle = handle,
            .title = handle.toUpper(),
            .price = {.amount = price, .currencyCode = currency}};
}

class KeptPiecesTest : public testing::Test
{
protected:
    struct Store {
        explicit Store(KeptPiecesTest& test)
            : folder(test.home.path())
            , viewed(folder, test.clock)
        {
            viewed.load();
            waitUntil([this] { return viewed.isLoaded(); }, "the list is read");
        }
        DataFolder folder;
        RecentlyViewedStore viewed;
    };
    [[nodiscard]] static std::string handles(const KeptPieces& list)
    {
        QStringList handles;
        for (const ProductListItem& item : list.items())
            handles.append(item.handle);
        EXPECT_EQ(list.handles(), QSet<QString>(handles.begin(), handles.end()));
        return handles.join(QLatin1Char(' ')).toStdString();
    }
    void record(RecentlyViewedStore& store, const char* list)
    {
        for (const QString& handle : QString::fromLatin1(list).split(QLatin1Char(' ')))
            store.record(piece(handle));
    }
    void write(const QByteArray& bytes) const
    {
        QFile file(home.filePath(QStringLiteral("lst_recently_viewed.json")));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly | QIODevice::Truncate));
        file.write(bytes);
    }
    [[nodiscard]] QJsonArray written() const
    {
        QFile file(home.filePath(QStringLiteral("lst_recently_viewed.json")));
        EXPECT_TRUE(file.open(QIODevice::ReadOnly));
        return QJsonDocument::fromJson(file.readAll()).array();
    }

    QTemporaryDir home;
    FakeClock clock;
};

TEST_F(KeptPiecesTest, APieceSeenAgainMovesToTheFrontAndTheOldestGivesWayToTheTwentyFirst)
{
    Store store(*this);
    for (int i = 1; i <= 20; ++i)
        store.viewed.record(piece(QStringLiteral("p%1").arg(i)));
    clock.setNow(clock.now().addYears(-1)); // a clock that jumps back changes no order
    store.viewed.record(piece(QStringLiteral("p1"), 80, QStringLiteral("EUR")));
    EXPECT_EQ(store.viewed.count(), 20);
    store.viewed.record(piece(QStringLiteral("p21")));
    EXPECT_EQ(handles(store.viewed), "p21 p1 p20 p19 p18 p17 p16 p15 p14 p13 p12 p11 p10 p9 p8 p7 p6 p5 p4 p3");
    const ProductListItem& again = store.viewed.items()[1];
    EXPECT_EQ(again.seenPrice, 80);
    EXPECT_EQ(again.seenCurrency, QStringLiteral("EUR"));
    EXPECT_EQ(again.seenAt, clock.now());
}

TEST_F(KeptPiecesTest, WhatANewerVersionWroteSurvivesARewrite)
{
    {
        Store store(*this);
        record(store.viewed, "b a");
    }
    QJsonArray list = written();
    for (int i = 0; i < 2; ++i) {
        QJsonObject item = list[i].toObject();
        item.insert(QStringLiteral("mood"), QJsonObject{{QStringLiteral("colour"), i}});
        list[i] = item;
    }
    write(QJsonDocument(list).toJson());
    {
        Store store(*this);
        record(store.viewed, "b c");
    }
    const QJsonArray now = written();
    ASSERT_EQ(now.size(), 3);
    EXPECT_EQ(now[0].toObject().contains(QStringLiteral("mood")), false);
    EXPECT_EQ(now[1].toObject()[QStringLiteral("mood")], json(R"({"colour": 1})"));
    EXPECT_EQ(now[2].toObject()[QStringLiteral("mood")], json(R"({"colour": 0})"));
}

TEST_F(KeptPiecesTest, AFileCutOffAnywhereKeepsEveryWholePieceAndTakesNewOnes)
{
    {
        Store store(*this);
        record(store.viewed, "c b a");
    }
    const QByteArray whole = QJsonDocument(written()).toJson(QJsonDocument::Compact);
    const qsizetype firstEnd = whole.indexOf("},{\"availableForSale") > 0 ? 0 : whole.indexOf("\"vendor\":\"\"}") + 12;
    ASSERT_GT(firstEnd, 12);
    for (qsizetype size = 0; size < whole.size(); ++size) {
        write(whole.left(size));
        Store store(*this);
        const int kept = store.viewed.count();
        EXPECT_LE(kept, 3);
        EXPECT_EQ(kept > 0, size >= firstEnd) << size;
        record(store.viewed, "new");
        store.folder.waitUntilWritten();
        ASSERT_EQ(written().size(), kept + 1) << size;
    }
    // One piece that nobody can read is left out, not the list.
    write(R"([{"handle": 5}, )" + whole.mid(1));
    EXPECT_EQ(handles(Store(*this).viewed), "a b c");
}

TEST_F(KeptPiecesTest, WhatWasTakenOutComesBackToItsPlaceWithItsStamps)
{
    Store store(*this);
    record(store.viewed, "e d c b a");
    const std::vector<ProductListItem> before = store.viewed.items();
    clock.advance(1h);
    store.viewed.remove(QStringLiteral("b"));
    store.viewed.removeAll({QStringLiteral("e"), QStringLiteral("a"), QStringLiteral("nothing")});
    EXPECT_EQ(handles(store.viewed), "c d");
    EXPECT_EQ(store.viewed.removedCount(), 3);
    store.viewed.undoRemoval();
    EXPECT_EQ(store.viewed.items(), before);

    store.viewed.clear();
    record(store.viewed, "c new");
    store.viewed.undoRemoval();
    EXPECT_EQ(handles(store.viewed), "new a b c d e");
    store.viewed.undoRemoval();
    EXPECT_EQ(store.viewed.count(), 6);
    store.folder.waitUntilWritten();
    EXPECT_EQ(written().size(), 6);
}

TEST_F(KeptPiecesTest, WhatIsRecordedWhileALongFileIsReadStandsBeforeIt)
{
    QJsonArray list;
    for (const char* handle : {"a", "b", "c"}) {
        QJsonObject item = toJson(piece(QString::fromLatin1(handle)));
        item.insert(QStringLiteral("note"), QString(2'000'000, QLatin1Char('x')));
        list.append(item);
    }
    write(QJsonDocument(list).toJson());
    DataFolder folder(home.path());
    RecentlyViewedStore viewed(folder, clock);
    viewed.load();
    EXPECT_FALSE(viewed.isLoaded());
    record(viewed, "c b new");
    viewed.remove(QStringLiteral("c"));
    folder.waitUntilWritten();
    EXPECT_EQ(written().size(), 3) << "written over before it was read";
    waitUntil([&viewed] { return viewed.isLoaded(); }, "the list is read");
    EXPECT_EQ(handles(viewed), "new b a");
    folder.waitUntilWritten();
    ASSERT_EQ(written().size(), 3);
    EXPECT_TRUE(written()[1].toObject().contains(QStringLiteral("note"))) << "what else stood in the file of it";
    viewed.undoRemoval();
    EXPECT_EQ(handles(viewed), "new b a c");
}

TEST(PriceDropTest, OnlyALowerPriceInTheSameCurrencyIsADrop)
{
    struct Row {
        std::optional<double> seen;
        const char* seenCurrency;
        double now;
        std::optional<double> from;
    };
    for (const Row& row : {Row{100, "USD", 80, 100}, Row{100, "USD", 100, {}}, Row{100, "USD", 120, {}},
                           Row{16000, "JPY", 80, {}}, Row{{}, "USD", 80, {}}, Row{100, "USD", 0, {}},
                           Row{std::numeric_limits<double>::infinity(), "USD", 80, {}}}) {
        ProductListItem item = piece(QStringLiteral("a"));
        item.seenPrice = row.seen;
        item.seenCurrency = QString::fromLatin1(row.seenCurrency);
        const auto from = droppedFrom(item, {.amount = row.now, .currencyCode = QStringLiteral("USD")});
        EXPECT_EQ(from ? std::optional(from->amount) : std::nullopt, row.from) << row.seenCurrency << row.now;
    }
}

} // namespace
