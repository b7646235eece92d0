#include "catalog/ProductListModel.h"

#include "catalog/MoneyFormat.h"
#include "support/Json.h"

#include "support/FakeClock.h"

#include <QAbstractItemModelTester>
#include <QJsonArray>

using namespace loom;

namespace
{

ProductListItem piece(const QString& handle, const QString& title = {})
{
    return {
        .id = handle, .handle = handle, .title = title, .price = {.amount = 1, .currencyCode = QStringLiteral("USD")}};
}

/// One piece for each letter; a capital is the same piece with another title.
std::vector<ProductListItem> pieces(const char* letters)
{
    std::vector<ProductListItem> items;
    for (const QChar letter : QString::fromLatin1(letters))
        items.push_back(piece(letter.toLower(), letter));
    return items;
}

class ProductListModelTest : public testing::Test
{
protected:
    ProductListModelTest()
    {
        const auto note = [this](const char* what) {
            return [this, what](const QModelIndex&, int first, int last) {
                log.append(QStringLiteral("%1 %2-%3").arg(QLatin1String(what)).arg(first).arg(last));
            };
        };
        QObject::connect(&model, &ProductListModel::rowsInserted, &model, note("in"));
        QObject::connect(&model, &ProductListModel::rowsRemoved, &model, note("out"));
        QObject::connect(&model, &ProductListModel::modelReset, &model,
                         [this] { log.append(QStringLiteral("reset")); });
        QObject::connect(&model, &ProductListModel::dataChanged, &model,
                         [this](const QModelIndex& first, const QModelIndex& last) {
                             log.append(QStringLiteral("new %1-%2").arg(first.row()).arg(last.row()));
                         });
        QObject::connect(&model, &ProductListModel::countChanged, &model,
                         [this] { log.append(QStringLiteral("count %1").arg(model.count())); });
    }

    [[nodiscard]] QString titles() const
    {
        QString text;
        for (int row = 0; row < model.rowCount(); ++row)
            text += model.data(model.index(row), ProductListModel::TitleRole).toString();
        return text;
    }
    [[nodiscard]] QVariant data(ProductListModel::Role role) const { return model.data(model.index(0), role); }

    FakeClock clock;
    MoneyFormat money{AppLanguage::English};
    ProductListModel model{money, clock};
    QAbstractItemModelTester tester{&model, QAbstractItemModelTester::FailureReportingMode::Fatal};
    QStringList log;
};

TEST_F(ProductListModelTest, RowsComeAndGoWithoutAReset)
{
    struct Row {
        const char* replaced; ///< or appended
        const char* appended;
        const char* titles;
        const char* log;
    };
    for (const Row& row : {
             Row{"", nullptr, "", ""},
             Row{nullptr, "", "", ""},
             Row{"abc", nullptr, "abc", "in 0-2|count 3"},
             Row{nullptr, "de", "abcde", "in 3-4|count 5"},
             Row{nullptr, "cea", "abcde", ""}, // known already
             Row{nullptr, "EfFg", "abcdefg", "in 5-6|count 7"},
             Row{"xyz", nullptr, "xyz", "out 3-6|new 0-2|count 3"},
             Row{"xYzY", nullptr, "xYz", "new 0-2"},
             Row{nullptr, "a", "xYza", "in 3-3|count 4"},
             Row{"axbycz", nullptr, "axbycz", "new 0-3|in 4-5|count 6"},
             Row{"", nullptr, "", "out 0-5|count 0"},
             Row{"a", nullptr, "a", "in 0-0|count 1"},
         }) {
        log.clear();
        if (row.replaced)
            model.replace(pieces(row.replaced));
        else
            model.append(pieces(row.appended));
        EXPECT_EQ(titles(), QLatin1String(row.titles));
        EXPECT_EQ(log.join(QLatin1Char('|')), QLatin1String(row.log)) << row.titles;
    }
}

TEST(ProductCardTest, APictureCarriesOneWordAtMost)
{
    const QDateTime now(QDate(2025, 3, 15), QTime(8, 0), Qt::UTC);
    struct Row {
        QStringList tags;
        std::optional<QDateTime> created;
        const char* label;
    };
    const QString presale = QStringLiteral("PreSale");
    for (const Row& row : {
             Row{{}, std::nullopt, ""},
             Row{{QStringLiteral("New")}, std::nullopt, ""}, // a tag is not an age
             Row{{}, now, "New"},
             Row{{}, now.addDays(-13), "New"},
             Row{{}, now.addDays(-14), ""},
             Row{{}, now.addDays(2), ""},
             Row{{presale}, now, "Presale"},
             Row{{QStringLiteral("presale-2")}, std::nullopt, ""},
             Row{{presale, QStringLiteral("Final-Sale")}, now, "Final sale"},
         }) {
        ProductListItem item = piece(QStringLiteral("a"));
        item.tags = row.tags;
        item.createdAt = row.created;
        EXPECT_EQ(pictureLabel(item, now), QLatin1String(row.label)) << row.label;
    }
}

TEST(ProductCardTest, NoPictureIsShownTwiceAndNoMoreThanFourColours)
{
    ProductListItem item = piece(QStringLiteral("a"));
    EXPECT_TRUE(cardPictures(item).isEmpty());
    item.cardImages = {QStringLiteral("2"), QStringLiteral("1"), QStringLiteral("2"), QString()};
    EXPECT_EQ(cardPictures(item), QStringList({QStringLiteral("2"), QStringLiteral("1")}));
    item.imageURL = QStringLiteral("1");
    EXPECT_EQ(cardPictures(item), QStringList({QStringLiteral("1"), QStringLiteral("2")}));

    item.styleImages = {QStringLiteral("r"), QStringLiteral("r")};
    EXPECT_TRUE(colourPictures(item).isEmpty()); // one colour in two sizes
    for (const char* const colour : {"i", "r", "g", "b", "w"})
        item.styleImages.append(QLatin1String(colour));
    EXPECT_EQ(colourPictures(item).join(QString()), QStringLiteral("rigb"));
}

} // namespace
