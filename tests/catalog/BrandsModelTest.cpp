#include "catalog/BrandsModel.h"

#include "support/ShopFixture.h"

#include <QAbstractItemModelTester>

using namespace loom;
using namespace std::chrono_literals;

namespace
{

QString text(const char* utf8)
{
    return QString::fromUtf8(utf8);
}

std::string written(const std::vector<BrandSection>& sections)
{
    QStringList words;
    for (const BrandSection& section : sections) {
        words.append(section.letter + QLatin1Char(':'));
        for (const Brand& brand : section.brands)
            words.append(brand.name);
    }
    return words.join(QLatin1Char(' ')).toStdString();
}

TEST(BrandIndexTest, NamesStandUnderTheLetterAShopperLooksFor)
{
    std::vector<Brand> brands;
    for (const char* const name : {"Zadig", "éclat", "Eau", "The Row", "Tallis", "Ørsted", "Łódź", "108", "アトリエ",
                                   "", "ßen", "  Œuvre", "Åsa", "asa", "#solo", "ﬁne", "İpek"})
        brands.push_back({.name = text(name), .count = 1});
    EXPECT_EQ(written(indexOf(brands, {})),
              text("#:  #solo 108 アトリエ A: asa Åsa E: Eau éclat F: ﬁne I: İpek L: Łódź O:   Œuvre Ørsted S: ßen "
                   "T: Tallis The Row Z: Zadig")
                  .toStdString());
    EXPECT_EQ(written(indexOf(brands, text(" ECLÁT "))), text("E: éclat").toStdString());
    EXPECT_EQ(written(indexOf(brands, text("lodz"))), text("L: Łódź").toStdString());
    EXPECT_EQ(written(indexOf(brands, text("nobody"))), "");
}

class BrandsModelTest : public ShopFixture
{
protected:
    /// The collection of all pieces with designers in its filter.
    static Answer filtered(const char* values)
    {
        const QByteArray page = R"({"collection": {"id": "c", "handle": "all", "title": "All", "products": {
            "nodes": [], "pageInfo": {"hasNextPage": false}, "filters": [{"id": "filter.p.vendor", "label": "Designer",
            "type": "LIST", "values": )" +
                                QByteArray(values) + "}]}}}";
        return envelope(json(page.constData()));
    }
    static Answer pieces(const QStringList& vendors, bool hasNextPage)
    {
        QJsonArray list;
        for (const QString& vendor : vendors) {
            QJsonObject card = cardJson(QStringLiteral("piece-%1").arg(list.size()));
            card.insert(QStringLiteral("vendor"), vendor);
            list.append(card);
        }
        const QJsonObject pageInfo{{QStringLiteral("hasNextPage"), hasNextPage},
                                   {QStringLiteral("endCursor"), QStringLiteral("next")}};
        const QJsonObject products{{QStringLiteral("nodes"), list}, {QStringLiteral("pageInfo"), pageInfo}};
        return envelope(QJsonObject{{QStringLiteral("products"), products}});
    }
    void settle(std::size_t requests)
    {
        server.waitForRequests(requests);
        waitUntil([this] { return !model->isLoading(); }, "the model has its answer");
        drainEvents();
    }

    std::unique_ptr<BrandsModel> model = std::make_unique<BrandsModel>(api, market, folder, clock);
    QAbstractItemModelTester tester{model.get(), QAbstractItemModelTester::FailureReportingMode::Fatal};
};

const char* const filter = "CollectionProducts";
const char* const walk = "Products";

TEST_F(BrandsModelTest, AStoreWithoutTheFilterIsWalkedThroughOnceADay)
{
    const Answer none = filtered("[]");
    answer(filter, none);
    answer(walk, pieces({QStringLiteral("Tallis"), QStringLiteral(" "), QStringLiteral("Aldine")}, true));
    answer(walk, pieces({QStringLiteral("Tallis")}, true)); // the cursor no longer moves
    model->load();
    settle(3);
    EXPECT_EQ(written(model->sections()), "A: Aldine T: Tallis");
    EXPECT_EQ(model->sections().back().brands.front().count, 2);

    answer(filter, none);
    model->reload(); // from what was found before
    settle(4);
    EXPECT_EQ(model->brandCount(), 2);

    clock.advance(25h);
    answer(filter, none);
    answer(walk, pieces({}, false));
    model->reload();
    settle(6);
    EXPECT_EQ(model->phase(), BrandsModel::Phase::Empty);

    answer(filter, none);
    answer(walk, Answer::silence());
    folder.remove(QStringLiteral("snap-brands"));
    model->reload();
    server.waitForRequests(8);
    model.reset(); // in the middle of the walk
    EXPECT_EQ(clock.sleepers(), 0);
}

} // namespace
