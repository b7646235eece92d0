#include "commerce/CartModel.h"

#include "CartFixture.h"

#include <QAbstractItemModelTester>

using namespace loom;
using namespace std::chrono_literals;

namespace
{

const QString one = QStringLiteral("one");

class CartModelTest : public CartFixture
{
protected:
    CartModelTest()
    {
        QObject::connect(&model, &QAbstractItemModel::modelReset, &model, [] { ADD_FAILURE() << "reset"; });
    }

    [[nodiscard]] QString get(const char* name) const { return model.property(name).toString(); }
    [[nodiscard]] QVariant at(int row, int role) const { return model.data(model.index(row), role); }
    [[nodiscard]] std::string rows() const
    {
        QStringList ids;
        for (int i = 0; i < model.rowCount(); ++i)
            ids.append(at(i, CartModel::LineIdRole).toString());
        return ids.join(QLatin1Char(' ')).toStdString();
    }
    /// Another cart comes from the platform.
    void become(const QJsonValue& cart)
    {
        answerRead(cart);
        model.refresh();
        settle(sent() + 1);
    }
    CartModel model{*store, 99, market, money, time};
    QAbstractItemModelTester tester{&model, QAbstractItemModelTester::FailureReportingMode::Fatal};
};

TEST_F(CartModelTest, RowsComeGoAndMoveWithoutAReset)
{
    const auto inserted = emissions(model, &QAbstractItemModel::rowsInserted);
    const auto removed = emissions(model, &QAbstractItemModel::rowsRemoved);
    const auto moved = emissions(model, &QAbstractItemModel::rowsMoved);
    const auto altered = emissions(model, &QAbstractItemModel::dataChanged);
    show({{"one", "v1", 1}, {"two", "v2", 2}});
    EXPECT_EQ(rows(), "one two");
    EXPECT_EQ(*inserted, 2);
    struct Row {
        std::vector<Goods> goods;
        const char* rows;
        int inserted;
        int removed;
        int moved;
        int altered;
    };
    for (const Row& row : {
             Row{{{"one", "v1", 1}, {"two", "v2", 2}}, "one two", 0, 0, 0, 0},
             Row{{{"one", "v1", 3}, {"two", "v2", 2}}, "one two", 0, 0, 0, 1},
             Row{{{"new", "v3", 1}, {"one", "v1", 3}, {"two", "v2", 2}}, "new one two", 1, 0, 0, 0},
             Row{{{"two", "v2", 2}, {"new", "v3", 1}, {"one", "v1", 3}}, "two new one", 0, 0, 1, 0},
             Row{{{"one", "v1", 3}, {"last", "v4", 1}}, "one last", 1, 2, 0, 0},
             Row{{}, "", 0, 2, 0, 0},
         }) {
        *inserted = *removed = *moved = *altered = 0;
        become(cartJson(row.goods));
        EXPECT_EQ(rows(), row.rows);
        EXPECT_EQ(*inserted, row.inserted) << row.rows;
        EXPECT_EQ(*removed, row.removed) << row.rows;
        EXPECT_EQ(*moved, row.moved) << row.rows;
        EXPECT_EQ(*altered, row.altered) << row.rows;
    }
}

TEST_F(CartModelTest, ARemovalCanBeUndoneForTenSeconds)
{
    show({{"one", "v1", 3}, {"two", "v2", 0}});
    model.setQuantity(one, 5); // what is shown is what comes back
    answer("CartLinesRemove", changedTo(cartJson({{"two", "v2", 0}})));
    model.remove(one);
    EXPECT_EQ(get("removedTitle"), QString()); // not gone yet
    settle(2);
    EXPECT_EQ(get("removedTitle"), QStringLiteral("Silk dress"));
    answer("CartLinesAdd", changedTo(cartJson({{"two", "v2", 0}, {"one", "v1", 5}})));
    model.undoRemoval();
    EXPECT_TRUE(model.isPuttingBack());
    EXPECT_EQ(get("removedTitle"), QString());
    model.undoRemoval();
    settle(3);
    EXPECT_FALSE(model.isPuttingBack());
    EXPECT_EQ(bytes(lastVariables().value(QStringLiteral("lines"))), R"([{"merchandiseId":"v1","quantity":5}])");
    time.advance(4s);

    answer("CartLinesRemove", changedTo(cartJson({{"two", "v2", 0}})));
    model.remove(one);
    settle(4);
    time.advance(9999ms);
    EXPECT_EQ(get("removedTitle"), QStringLiteral("Silk dress"));
    time.advance(1ms);
    EXPECT_EQ(get("removedTitle"), QString());
    model.undoRemoval();
    EXPECT_FALSE(model.isPuttingBack());
}

} // namespace
