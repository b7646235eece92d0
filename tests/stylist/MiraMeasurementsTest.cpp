#include "stylist/MiraMeasurements.h"
#include "stylist/EnteredNumber.h"

#include "support/Printing.h"

namespace loom
{

namespace
{

using Entry = MiraMeasurements::Entry;

const Entry metric{.unit = SizeUnit::Metric, .height = "170", .weight = "65"};
const Entry imperial{.unit = SizeUnit::Imperial, .feet = "5", .inches = "7", .weight = "143"};

/// The fields to blame; empty when there are none.
std::string blamed(const Entry& entry)
{
    const auto measurements = MiraMeasurements::fromEntry(entry);
    if (measurements)
        return {};
    const bool isBody = measurements.error().problem == MiraMeasurements::Problem::HeightOrWeight;
    return (isBody ? "body: " : "other: ") + measurements.error().fields.join(u' ').toStdString();
}

} // namespace

TEST(EnteredNumberTest, DigitsOfAnyScriptAreNumbersAndNothingElseIs)
{
    const std::pair<const char*, std::optional<double>> rows[] = {
        {"170", 170},
        {" 65.5 ", 65.5},
        {"5,7", 5.7},
        {"١٧٠", 170},
        {"۱۷۰٫۵", 170.5},
        {"１７０．５", 170.5},
        {"१७०", 170},
        {"007", 7},
        {"", {}},
        {" ", {}},
        {".", {}},
        {".5", {}},
        {"5.", {}},
        {"1e2", {}},
        {"-5", {}},
        {"+5", {}},
        {"1,000.5", {}},
        {"1.2.3", {}},
        {"5'7", {}},
        {"170 cm", {}},
        {"17 0", {}},
        {"0x1F", {}},
        {"nan", {}},
        {"²", {}},
        {"1234567890123", {}},
    };
    for (const auto& [text, number] : rows)
        EXPECT_EQ(enteredNumber(QString::fromUtf8(text)), number) << text;
    EXPECT_EQ(enteredNumber(QString(400, u'1')), std::nullopt);
}

TEST(MiraMeasurementsTest, OnlyTheMeasuresOfAPersonAreTaken)
{
    struct Row {
        Entry base;
        QString Entry::* field;
        QString text;
        const char* blamed;
    };
    const QString long400(400, u'9');
    const Row rows[] = {
        {metric, &Entry::height, "90", ""},
        {metric, &Entry::height, "250", ""},
        {metric, &Entry::height, "89.9", "body: height"},
        {metric, &Entry::height, "250,1", "body: height"},
        {metric, &Entry::height, "", "body: height"},
        {metric, &Entry::height, "1e2", "body: height"},
        {metric, &Entry::height, long400, "body: height"},
        {metric, &Entry::height, QString::fromUtf8("١٧٠"), ""},
        {metric, &Entry::weight, "25", ""},
        {metric, &Entry::weight, "300", ""},
        {metric, &Entry::weight, "24,9", "body: weight"},
        {metric, &Entry::weight, "300.1", "body: weight"},
        {metric, &Entry::feet, "99", ""}, // not a field of this sheet
        {metric, &Entry::bust, " ", ""},
        {metric, &Entry::bust, "40", ""},
        {metric, &Entry::waist, "200", ""},
        {metric, &Entry::waist, "39.9", "other: waist"},
        {metric, &Entry::hip, "200.1", "other: hip"},
        {metric, &Entry::hip, "wide", "other: hip"},
        {imperial, &Entry::feet, "2", "body: feet inches"},
        {imperial, &Entry::feet, "5.5", "body: feet inches"},
        {imperial, &Entry::feet, "x", "body: feet inches"},
        {imperial, &Entry::inches, "", ""},
        {imperial, &Entry::inches, "-1", "body: feet inches"},
        {imperial, &Entry::weight, "55", "body: weight"},
        {imperial, &Entry::weight, "56", ""},
        {imperial, &Entry::bust, "20", ""},
        {imperial, &Entry::bust, "10", "other: bust"},
    };
    for (const Row& row : rows) {
        Entry entry = row.base;
        entry.*row.field = row.text;
        EXPECT_EQ(blamed(entry), row.blamed) << row.text.left(20).toStdString();
    }
    EXPECT_EQ(blamed({.bust = "1"}), "body: height weight");
    Entry several = metric;
    several.bust = several.hip = "1";
    EXPECT_EQ(blamed(several), "other: bust hip");
    EXPECT_EQ(errorDescription(MiraMeasurements::Problem::HeightOrWeight),
              "That height or weight doesn't look right. Check the numbers and the units.");
    EXPECT_EQ(errorDescription(MiraMeasurements::Problem::Other),
              "One of these measurements doesn't look right. Check the number, or leave it empty.");

    EXPECT_TRUE((MiraMeasurements{.height = 170, .weight = 65, .hip = 90}).isPlausible());
    EXPECT_FALSE((MiraMeasurements{.height = 170, .weight = 65, .hip = qQNaN()}).isPlausible());
    EXPECT_FALSE((MiraMeasurements{}).isPlausible());
}

TEST(MiraMeasurementsTest, ValuesAreKeptInMetricAndShownInBoth)
{
    Entry entry = imperial;
    entry.bust = "34";
    entry.fit = MiraFit::Fitted;
    const auto measurements = MiraMeasurements::fromEntry(entry);
    ASSERT_TRUE(measurements);
    EXPECT_DOUBLE_EQ(measurements->height, 170.18);
    EXPECT_DOUBLE_EQ(measurements->weight, 64.86370891);
    EXPECT_DOUBLE_EQ(measurements->bust.value_or(0), 86.36);
    EXPECT_EQ(measurements->entry(SizeUnit::Imperial), entry);
    EXPECT_EQ(measurements->entry(SizeUnit::Metric),
              (Entry{.height = "170.2", .weight = "64.9", .bust = "86.4", .fit = MiraFit::Fitted}));

    using Height = MiraMeasurements::FeetAndInches;
    EXPECT_EQ(MiraMeasurements::shownHeight(182.87), (Height{"6", "0"})); // not 5 feet 12
    EXPECT_EQ(MiraMeasurements::shownHeight(170), (Height{"5", "6.9"}));
    EXPECT_EQ(MiraMeasurements::enteredHeight({.unit = SizeUnit::Imperial, .inches = "67"}), 67 * 2.54);
    EXPECT_EQ(MiraMeasurements::enteredHeight({.unit = SizeUnit::Imperial, .height = "170"}), std::nullopt);
    const std::pair<double, const char*> rows[] = {{170, "170"},  {170.04, "170"}, {170.05001, "170.1"},
                                                   {69.96, "70"}, {65.25, "65.2"}, {65.75, "65.8"}};
    for (const auto& [value, shown] : rows)
        EXPECT_EQ(shownMeasure(value), shown);
}

TEST(MiraMeasurementsTest, TheMessageNamesWhatWasGiven)
{
    MiraMeasurements measurements{.height = 170.18, .weight = 65};
    EXPECT_EQ(measurements.message(), QString::fromUtf8("📏 My measurements: height 170.2cm, weight 65kg, I prefer a "
                                                        "regular fit. What size should I take?"));
    measurements.unit = SizeUnit::Imperial;
    measurements.hip = 95.5;
    measurements.bust = 88;
    measurements.waist = 70;
    measurements.fit = MiraFit::Loose;
    EXPECT_EQ(measurements.message(),
              QString::fromUtf8("📏 My measurements: height 170.2cm, weight 65kg, bust 88cm, waist 70cm, hip 95.5cm, "
                                "I prefer a loose fit. What size should I take?"));
    EXPECT_EQ(miraFitFrom("fitted"), MiraFit::Fitted);
    EXPECT_EQ(miraFitFrom("tight"), MiraFit::Regular);
}

} // namespace loom
