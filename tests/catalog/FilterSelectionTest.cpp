#include "catalog/FilterModel.h"
#include "catalog/FilterValuesModel.h"
#include "catalog/MoneyFormat.h"

#include "support/Json.h"
#include "support/Printing.h"

#include <QAbstractItemModelTester>

namespace loom
{

namespace
{

const QString size = QStringLiteral("size");
const QString maker = QStringLiteral("maker");

CollectionFilter::Value value(const QString& id, qint64 count, const char* input)
{
    return {.id = id, .label = id.toUpper(), .count = count, .input = QLatin1String(input)};
}

std::vector<CollectionFilter> offered()
{
    return {{.id = size,
             .label = QStringLiteral("Size"),
             .values = {value(QStringLiteral("s"), 3, R"({"size":"S"})"),
                        value(QStringLiteral("m"), 5, R"({"size":"M"})")}},
            {.id = QStringLiteral("price"),
             .label = QStringLiteral("Price"),
             .kind = CollectionFilter::Kind::PriceRange,
             .values = {value(QStringLiteral("price"), 8, R"({"price":{"min":0,"max":640.5}})")}},
            {.id = maker,
             .label = QStringLiteral("Designer"),
             .values = {value(QStringLiteral("orsola"), 4, R"({"productVendor":"Orsola"})")}}};
}

class FilterModelTest : public testing::Test
{
protected:
    [[nodiscard]] std::string sent() const { return bytes(filters.inputs()).toStdString(); }
    [[nodiscard]] QString chips() const
    {
        QStringList labels;
        for (const QVariant& chip : filters.chips())
            labels.append(chip.toMap().value(QStringLiteral("label")).toString());
        return labels.join(QLatin1Char('|'));
    }

    MoneyFormat money{AppLanguage::English};
    FilterModel filters{money};
    QAbstractItemModelTester tester{&filters, QAbstractItemModelTester::FailureReportingMode::Fatal};
};

} // namespace

TEST(FilterSelectionTest, TheInputsOfTheChosenValuesAreSentAndThenThePrice)
{
    FilterSelection selection;
    EXPECT_EQ(bytes(inputs(offered(), selection)), "[]");
    selection.toggle(maker, QStringLiteral("orsola"));
    selection.toggle(size, QStringLiteral("m"));
    selection.setPrice(100, {});
    EXPECT_EQ(bytes(inputs(offered(), selection)),
              R"([{"size":"M"},{"productVendor":"Orsola"},{"price":{"min":100}}])");
    selection.setPrice(0, 99.5);
    selection.toggle(size, QStringLiteral("m"));
    EXPECT_EQ(bytes(inputs(offered(), selection)), R"([{"productVendor":"Orsola"},{"price":{"max":99.5}}])");
    selection.setPrice(300, 100); // the wrong way round
    EXPECT_EQ(selection.priceMin, 100);
    EXPECT_EQ(selection.count(), 2);
    selection.setPrice(-1, std::nan(""));
    selection.toggle(maker, QStringLiteral("orsola"));
    EXPECT_TRUE(selection.isEmpty());
    EXPECT_EQ(selection, FilterSelection());
}

TEST_F(FilterModelTest, WhatIsNoLongerOfferedStaysInForceUntilItIsTakenBack)
{
    filters.update(offered(), QStringLiteral("USD"));
    EXPECT_EQ(filters.count(), 3);
    filters.toggle(maker, QStringLiteral("orsola"));
    filters.toggle(size, QStringLiteral("s"));
    filters.toggle(size, QStringLiteral("xxl")); // never offered
    filters.toggle(QStringLiteral("x"), QStringLiteral("s"));
    filters.setPriceText(QStringLiteral("100"), QStringLiteral("299,5"));
    EXPECT_EQ(chips(), QStringLiteral("Size: S|ORSOLA|$100 – $299.50"));

    filters.update({{.id = size, .label = QStringLiteral("Size"), .values = {offered()[0].values[1]}}}, {});
    const std::string before = R"([{"size":"S"},{"productVendor":"Orsola"},{"price":{"max":299.5,"min":100}}])";
    EXPECT_EQ(sent(), before);
    EXPECT_EQ(chips(), QStringLiteral("Size: S|ORSOLA|$100 – $299.50"));

    filters.removeChip(maker, QStringLiteral("orsola"));
    filters.removeChip(maker, QStringLiteral("orsola")); // a second press of the same chip
    filters.removeChip({}, {});
    EXPECT_EQ(sent(), R"([{"size":"S"}])");
}

TEST_F(FilterModelTest, AnAnswerKeepsTheRowsThatStay)
{
    filters.update(offered(), QStringLiteral("USD"));
    const auto values = [&](int row) {
        return filters.index(row).data(FilterModel::ValuesRole).value<FilterValuesModel*>();
    };
    FilterValuesModel* const makers = values(2);
    const QAbstractItemModelTester ofMakers(makers, QAbstractItemModelTester::FailureReportingMode::Fatal);
    std::vector<CollectionFilter> next = offered();
    next.erase(next.begin()); // a filter goes, the others move up
    next[1].values.insert(next[1].values.begin(), value(QStringLiteral("aurel"), 1, R"({"productVendor":"Aurel"})"));
    filters.update(next, {});
    EXPECT_EQ(values(1), makers);
    EXPECT_EQ(makers->rowCount(), 2);
    EXPECT_EQ(makers->index(0).data(FilterValuesModel::LabelRole), QStringLiteral("AUREL"));

    // Of many values a few are listed until all are wanted.
    for (int i = 0; i < 5000; ++i)
        next[1].values.push_back(value(QStringLiteral("Désirée %1").arg(i), 1, R"({"productVendor":"x"})"));
    filters.update(next, {});
    EXPECT_EQ(makers->rowCount(), static_cast<int>(FilterValuesModel::firstValues));
    makers->setExpanded(true);
    EXPECT_EQ(makers->rowCount(), 5002);
    makers->setSearch(QStringLiteral(" desiree 499"));
    EXPECT_EQ(makers->rowCount(), 11);
    makers->setExpanded(false);
    EXPECT_EQ(makers->rowCount(), static_cast<int>(FilterValuesModel::firstValues));
}

} // namespace loom
