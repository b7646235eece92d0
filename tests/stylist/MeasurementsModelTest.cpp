#include "stylist/MeasurementsModel.h"

#include "storage/DataFolder.h"
#include "storage/Preferences.h"

#include "support/Json.h"
#include "support/Printing.h"

#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace loom
{

namespace
{

class MeasurementsModelTest : public testing::Test
{
protected:
    [[nodiscard]] std::unique_ptr<MeasurementsModel> make()
    {
        auto model = std::make_unique<MeasurementsModel>(folder, preferences);
        QObject::connect(model.get(), &MeasurementsModel::messageReady, model.get(),
                         [this](const QString& text) { messages.append(text); });
        model->begin();
        return model;
    }
    [[nodiscard]] QByteArray kept()
    {
        folder.waitUntilWritten();
        QFile file(home.filePath("lst_mira_measurements.json"));
        return file.open(QIODevice::ReadOnly) ? file.readAll().trimmed() : QByteArray();
    }

    QTemporaryDir home;
    DataFolder folder{home.path()};
    Preferences preferences{folder};
    QStringList messages;
};

TEST_F(MeasurementsModelTest, AChangeOfTheUnitLosesNothing)
{
    const auto model = make();
    model->setHeight("170");
    model->setWeight("58");
    model->setBust("86,5");
    model->setWaist("none");
    model->setHip("36");
    model->setMetric(false);
    EXPECT_EQ(model->feet() + ' ' + model->inches(), "5 6.9");
    EXPECT_EQ(model->weight(), "127.9");
    EXPECT_EQ(model->bust(), "34.1");
    EXPECT_EQ(model->waist(), "none");
    EXPECT_EQ(model->hip(), "36"); // nobody's in centimetres: it was meant in inches
    model->setMetric(true);
    EXPECT_EQ(model->height(), "170");
    EXPECT_EQ(model->weight(), "58");
    EXPECT_EQ(model->bust(), "86.5");
    EXPECT_EQ(model->hip(), "91.4");

    // What is sent is what was entered, not what it was rounded to.
    model->setMetric(false);
    model->setWaist("");
    model->setFit("loose");
    model->save();
    EXPECT_EQ(messages,
              QStringList("📏 My measurements: height 170cm, weight 58kg, bust 86.5cm, hip 91.4cm, I prefer a "
                          "loose fit. What size should I take?"));
    // Another part of the application may change the unit as well.
    preferences.set(preferences::sizeUnit, "metric");
    EXPECT_TRUE(model->isMetric());
    EXPECT_EQ(model->height(), "170");
}

TEST_F(MeasurementsModelTest, WhatIsWrongIsSaidUntilItIsChanged)
{
    const auto model = make();
    model->save();
    EXPECT_EQ(model->failure(), "That height or weight doesn't look right. Check the numbers and the units.");
    EXPECT_EQ(model->flawed(), (QStringList{"height", "weight"}));
    model->setMetric(false);
    EXPECT_EQ(model->failure(), "");
    model->setFeet("5");
    model->setInches("7");
    model->setWeight("130");
    model->setBust("10");
    model->setHip("1e2");
    model->save();
    EXPECT_EQ(model->failure(), "One of these measurements doesn't look right. Check the number, or leave it empty.");
    EXPECT_EQ(model->flawed(), (QStringList{"bust", "hip"}));
    EXPECT_EQ(messages, QStringList());
    EXPECT_EQ(kept(), "");
    EXPECT_FALSE(model->isKept());
    model->setBust("20");
    EXPECT_EQ(model->failure(), "");
    model->setHip(" ");
    model->save();
    EXPECT_EQ(messages.size(), 1);
    EXPECT_EQ(json(kept().constData()),
              json(R"({"height": 170.18, "weight": 58.9670081, "bust": 50.8, "fit": "regular"})"));
}

TEST_F(MeasurementsModelTest, WhatWasSavedFillsTheSheetUntilItIsForgotten)
{
    auto model = make();
    model->setHeight("170");
    model->setWeight("58");
    model->setFit("fitted");
    model->save();
    model->setWeight("60"); // not saved
    model->begin();
    EXPECT_EQ(model->weight(), "60");
    folder.waitUntilWritten();
    preferences.set(preferences::sizeUnit, "imperial");
    model = make();
    EXPECT_TRUE(model->isKept());
    EXPECT_EQ(model->feet() + ' ' + model->inches() + ' ' + model->weight() + ' ' + model->fit(), "5 6.9 127.9 fitted");
    model->forget();
    EXPECT_EQ(model->feet() + model->weight() + model->fit(), "regular");
    EXPECT_FALSE(model->isKept());
    EXPECT_EQ(kept(), "");
    model->begin();
    EXPECT_EQ(model->weight(), "");

    // Also before anybody looked at them, and files that hold nobody's measures are none.
    for (const char* const file : {R"({"height": 900, "weight": 58})", R"({"height": 170})", "[]",
                                   R"({"height": 170, "weight": 58, "bust": 1})"}) {
        folder.save(QString::fromLatin1(MeasurementsModel::fileName), json(file));
        EXPECT_FALSE(make()->isKept()) << file;
    }
    folder.save(QString::fromLatin1(MeasurementsModel::fileName),
                json(R"({"height": 170, "weight": 58, "bust": {}, "fit": 7})"));
    EXPECT_EQ(make()->fit(), "regular");
    MeasurementsModel(folder, preferences).forget();
    EXPECT_EQ(kept(), "");
}

} // namespace

} // namespace loom
