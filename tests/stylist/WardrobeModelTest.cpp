#include "stylist/WardrobeModel.h"

#include "MiraFixture.h"

#include <QAbstractItemModelTester>

using namespace loom;

namespace
{

class WardrobeModelTest : public MiraFixture
{
protected:
    void keep(const QString& handle, const QString& title)
    {
        wishlist.add({.handle = handle, .title = title, .price = {.amount = 1, .currencyCode = QStringLiteral("USD")}});
    }
    [[nodiscard]] static QString told(const WardrobeModel& model, int row, int role)
    {
        return model.data(model.index(row), role).toString();
    }
};

} // namespace

TEST_F(WardrobeModelTest, PiecesOfTheBagComeFirstAndEachPieceOnce)
{
    show({{"line", "one", 1}, {"other", "two", 1}});
    const QString inCart = store->cart()->lines.front().productHandle;
    keep(inCart, QStringLiteral("Saved as well"));
    keep(QStringLiteral("boots"), QStringLiteral("Leather boots"));
    WardrobeModel model(*store, wishlist);
    const QAbstractItemModelTester tester(&model, QAbstractItemModelTester::FailureReportingMode::Fatal);
    EXPECT_EQ(model.count(), 0); // nobody looks
    model.show();
    QStringList handles;
    for (int row = 0; row < model.count(); ++row)
        handles.append(told(model, row, WardrobeModel::HandleRole));
    EXPECT_EQ(handles.count(inCart), 1);
    EXPECT_EQ(told(model, 0, WardrobeModel::SourceRole), QStringLiteral("cart"));
    const int last = model.count() - 1;
    EXPECT_EQ(told(model, last, WardrobeModel::HandleRole), QStringLiteral("boots"));
    EXPECT_EQ(told(model, last, WardrobeModel::SourceRole), QStringLiteral("wishlist"));
    EXPECT_EQ(told(model, last, WardrobeModel::SlotRole), QStringLiteral("shoes"));

    // What is no longer there is no longer picked.
    keep(QStringLiteral("coat"), QStringLiteral("Wool coat"));
    model.pick({QStringLiteral("boots"), QStringLiteral("coat"), QStringLiteral("unknown")});
    ASSERT_EQ(model.pickedCount(), 2);
    EXPECT_EQ(model.picked().front().handle, QStringLiteral("coat")); // outerwear before shoes
    wishlist.remove(QStringLiteral("coat"));
    EXPECT_EQ(model.pickedCount(), 1);
    model.toggle(QStringLiteral("boots"));
    model.toggle(QStringLiteral("unknown"));
    EXPECT_EQ(model.pickedCount(), 0);
}

TEST_F(WardrobeModelTest, NoMoreThanTheStylistReadsCanBePicked)
{
    QStringList handles;
    for (int i = 0; i < 75; ++i) {
        handles.append(QStringLiteral("piece-%1").arg(i));
        keep(handles.back(), QStringLiteral("Piece"));
    }
    WardrobeModel model(*store, wishlist);
    model.pick(handles);
    EXPECT_EQ(model.pickedCount(), 60);
    model.toggle(handles.front()); // the oldest, which was not among them
    EXPECT_EQ(model.pickedCount(), 60);
    model.clearPicks();
    model.toggle(handles.front());
    EXPECT_EQ(model.pickedCount(), 1);
}
