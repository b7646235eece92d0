#include "services/ToolsModel.h"

#include "ConfigFixture.h"

#include <QAbstractItemModelTester>

using namespace loom;

namespace
{

class ToolsModelTest : public ConfigFixture
{
};

TEST_F(ToolsModelTest, HiddenToolsLeaveAndComeBackToTheirPlaces)
{
    make();
    ToolsModel model(*config);
    const QAbstractItemModelTester tester(&model, QAbstractItemModelTester::FailureReportingMode::Fatal);
    const auto keys = [&model] {
        std::string all;
        for (int row = 0; row < model.rowCount(); ++row)
            all += model.data(model.index(row), ToolsModel::KeyRole).toString().toStdString() + ' ';
        return all;
    };
    EXPECT_EQ(keys(), "closet studio lookbook outfitIdeas sizeAdvice imageSearch compare ");
    fetch(R"({"tools": {"hidden": ["closet", "compare", "studio", "unknown"]}})");
    EXPECT_EQ(keys(), "lookbook outfitIdeas sizeAdvice imageSearch ");
    fetch(R"({"tools": {"hidden": ["lookbook"]}})");
    EXPECT_EQ(keys(), "closet studio outfitIdeas sizeAdvice imageSearch compare ");
    EXPECT_EQ(model.count(), 6);
}

} // namespace
