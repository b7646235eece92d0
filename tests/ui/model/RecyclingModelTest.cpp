#include "ui/model/RecyclingModel.h"

#include "support/Running.h"

#include <QAbstractItemModelTester>
#include <QStringListModel>
#include <gtest/gtest.h>

namespace loom
{

namespace
{

/// A view of a list of letters, whose items show what they were told last.
class RecyclingModelTest : public testing::Test
{
protected:
    RecyclingModelTest()
    {
        const auto show = [this](int first, int last) {
            shown.resize(static_cast<std::size_t>(model.rowCount()));
            for (int i = first; i <= last; ++i)
                shown[static_cast<std::size_t>(i)] = model.index(i).data().toString();
        };
        QObject::connect(&model, &QAbstractItemModel::rowsInserted, &model,
                         [show](const QModelIndex&, int first, int last) { show(first, last); });
        QObject::connect(&model, &QAbstractItemModel::dataChanged, &model,
                         [show](const QModelIndex& first, const QModelIndex& last, const QList<int>& roles) {
                             if (!roles.contains(RecyclingModel::PlaceRole))
                                 show(first.row(), last.row());
                         });
        list.setStringList(QStringLiteral("abcdefghijklmnopqrst").split(QString(), Qt::SkipEmptyParts));
        model.setSource(&list);
        look(0, 3);
    }
    void look(int first, int last) { model.look(first, last, first - 2, last + 2); }
    /// What the items show from place to place, "-" where there is none.
    [[nodiscard]] QString seen(int first, int last) const
    {
        QString letters;
        for (int place = first; place <= last; ++place) {
            const int slot = model.indexOf(place);
            letters += slot < 0 ? QStringLiteral("-") : shown[static_cast<std::size_t>(slot)];
        }
        return letters;
    }
    void awaitSeen(int first, int last, const char* letters) const
    {
        waitUntil([&] { return seen(first, last) == QLatin1String(letters); }, letters);
    }

    QStringListModel list;
    RecyclingModel model;
    std::vector<QString> shown;
    QAbstractItemModelTester tester{&model, QAbstractItemModelTester::FailureReportingMode::Fatal};
};

TEST_F(RecyclingModelTest, AFewItemsServeALongList)
{
    EXPECT_FALSE(model.isComplete());
    awaitSeen(0, 6, "abcdef-");
    EXPECT_TRUE(model.isComplete());
    for (const int first : {4, 9, 16, 2, 10})
        look(first, first + 3);
    awaitSeen(8, 15, "ijklmnop");
    EXPECT_LE(model.rowCount(), 10);
    // Where the keyboard is there is always an item, and so where it goes.
    EXPECT_EQ(seen(0, 0), QStringLiteral("a"));
    model.setCurrent(19);
    EXPECT_EQ(seen(19, 19), QStringLiteral("t"));
}

TEST_F(RecyclingModelTest, ItemsFollowTheirPiecesAsTheListChanges)
{
    awaitSeen(0, 5, "abcdef");
    model.setCurrent(3);
    const int kept = model.indexOf(3);
    list.removeRows(1, 2);
    EXPECT_EQ(model.indexOf(1), kept);
    EXPECT_EQ(model.current(), 1);
    awaitSeen(0, 5, "adefgh");
    list.insertRows(0, 1);
    EXPECT_EQ(model.current(), 2);
    awaitSeen(0, 5, "adefg");
    list.setData(list.index(0), QStringLiteral("z"));
    awaitSeen(0, 5, "zadefg");

    // The current one goes: the next takes its place, at the end the one before.
    list.removeRows(2, 1);
    EXPECT_EQ(model.current(), 2);
    list.removeRows(2, list.rowCount() - 2);
    EXPECT_EQ(model.current(), 1);
    list.removeRows(0, 2);
    EXPECT_EQ(model.current(), -1);
    EXPECT_TRUE(model.isComplete());
    list.setStringList({QStringLiteral("x"), QStringLiteral("y")});
    EXPECT_EQ(model.current(), 0);
    awaitSeen(0, 1, "xy");
}

TEST_F(RecyclingModelTest, AListMayGoBeforeItsView)
{
    auto passing = std::make_unique<QStringListModel>(QStringList{QStringLiteral("x")});
    model.setSource(passing.get());
    awaitSeen(0, 0, "x");
    passing.reset();
    EXPECT_EQ(model.count(), 0);
    EXPECT_EQ(model.indexOf(0), -1);
}

} // namespace

} // namespace loom
