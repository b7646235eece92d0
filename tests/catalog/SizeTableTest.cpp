#include "catalog/SizeTable.h"

#include <gtest/gtest.h>

namespace loom
{

namespace
{

constexpr auto metric = SizeUnit::Metric;
constexpr auto imperial = SizeUnit::Imperial;

struct CellRow {
    const char* cell;
    const char* inMetric;
    const char* inImperial;
};

void expectCells(const char* heading, const char* title, std::initializer_list<CellRow> rows)
{
    const auto shown = [&](const CellRow& row, SizeUnit unit) {
        return sizeCell(QString::fromUtf8(row.cell), unit, QString::fromUtf8(heading), QString::fromUtf8(title))
            .toStdString();
    };
    for (const CellRow& row : rows) {
        EXPECT_EQ(shown(row, metric), row.inMetric) << row.cell;
        EXPECT_EQ(shown(row, imperial), row.inImperial) << row.cell;
    }
}

/// A table written with "|" between cells and "\n" between rows; the first row is the title.
TableSection table(const char* text)
{
    QStringList lines = QString::fromUtf8(text).split(u'\n');
    TableSection result{.title = lines.takeFirst(), .rows = {}};
    for (const QString& line : lines)
        result.rows.append(line.split(u'|'));
    return result;
}

std::string written(const TableSection& table)
{
    QStringList lines{table.title};
    for (const QStringList& row : table.rows)
        lines.append(row.join(u'|'));
    return lines.join(u'\n').toStdString();
}

} // namespace

TEST(SizeTableTest, ACellShowsThePartOrTheConversionAskedFor)
{
    expectCells("Bust", "Size table",
                {
                    // Both units are there.
                    {"170cm / 67in", "170cm", "67in"},
                    {"84 - 88 cm/33 - 35 in", "84 – 88 cm", "33 – 35 in"},
                    {"170 cm / 5'7", "170 cm", "5'7"},
                    {"4 mm / 1/8 in", "4 mm", "1/8 in"},
                    {"170 cm / 5'7 / 55 kg", "170 cm", "5'7 / 55 kg"},
                    {"cm / 33", "cm / 33", "cm / 33"},
                    // Metric alone.
                    {"88 cm", "88 cm", "34.5 in"},
                    {"84.5\u201388.25  cm", "84.5 – 88.25 cm", "33.5 – 34.5 in"},
                    {"84,5 cm", "84,5 cm", "33,5 in"},
                    {"50-55kg", "50 – 55kg", "110 – 121 lbs"},
                    {"100 - 101 cm", "100 – 101 cm", "39.5 – 40 in"},
                    {"ease \u00b1 2 cm (soft)", "ease \u00b1 2 cm (soft)", "ease \u00b1 1 in (soft)"},
                    {"0 cm", "0 cm", "0 in"},
                    // Imperial alone, or no unit: nobody knows better than the merchant.
                    {"33 - 35 in", "33 – 35 in", "33 – 35 in"},
                    {"84", "84", "84"},
                });
}

TEST(SizeTableTest, ACellIsConvertedAsAWholeOrNotAtAll)
{
    for (const char* cell :
         {"84 to 88 cm", "84-88-92 cm", "84 x 60 cm", "10 cm, 4 mm", "1,200 cm", "1.200,5 cm", "84,125 cm", "123456 cm",
          "84\u00bd cm", "0.2 cm", ".5 cm", "67 in / 170 cm", "84 cm (33 in)", "12 mm", "Size 36: 88 cm"})
        expectCells("Bust", "Size table", {{cell, cell, cell}});
}

TEST(SizeTableTest, ABareNumberHasTheUnitOfItsHeadingOrElseOfTheTitle)
{
    struct Row {
        const char* heading;
        const char* title;
        const char* expected; ///< of "84 - 88" for an imperial shopper
    };
    const Row rows[] = {
        {"Bust", "", "84 – 88"},
        {"Bust (cm)", "", "33 – 34.5"},
        {"Weight (kg)", "In cm", "185 – 194"},
        {"Bust", "Measured in centimetres", "33 – 34.5"},
        {"Bust (in)", "Size table (cm)", "84 – 88"},
        {"Bust (cm / in)", "", "84 – 88"},
        {"Heel (mm)", "Size table (cm)", "84 – 88"},
        {"EU", "Size table (cm)", "84 – 88"},
        {"JP (cm)", "", "84 – 88"},
        {"Waist size", "Size table (cm)", "33 – 34.5"},
        {"Bust", "Model is 170 cm tall", "84 – 88"},
    };
    for (const Row& row : rows) {
        EXPECT_EQ(
            sizeCell(QStringLiteral("84 - 88"), imperial, QString::fromUtf8(row.heading), QString::fromUtf8(row.title))
                .toStdString(),
            row.expected)
            << row.heading << " in " << row.title;
    }
    expectCells("Length (cm)", "", {{"123", "123", "48.5"}, {"S", "S", "S"}, {"84 cm / 33 in", "84 cm", "33 in"}});
}

TEST(SizeTableTest, ATableSwitchesHeadingsWithTheNumbersBelowThem)
{
    struct Row {
        const char* why;
        const char* metric;
        const char* imperial;
    };
    const Row rows[] = {
        {"headings", "Sizes\nSize|Bust (cm)|Weight (KG)\n36-38|84 – 88|50",
         "Sizes\nSize|Bust (in)|Weight (LBS)\n36-38|33 – 34.5|110"},
        {"title", "Measured in cm\nSize|EU|Length\n34|40|123", "Measured in inches\nSize|EU|Length\n34|40|48.5"},
        {"corner beside sizes", "T\nSize (cm)|Bust\n36|84", "T\nSize (in)|Bust\n36|33"},
        {"corner without a word", "T\ncm|36|38\nBust|84|88", "T\nin|36|38\nBust|33|34.5"},
        {"corner over measures", "T\nHeight (cm)|Size\n160|S", "T\nHeight (in)|Size\n63|S"},
        {"corner below a title in both units", "T (cm / in)\nSize (cm)|Bust\nS|84",
         "T (cm / in)\nSize (cm)|Bust\nS|84"},
        {"sizes in centimetres", "T\nSize|JP (cm)\nS|23", "T\nSize|JP (cm)\nS|23"},
        {"measures in rows", "T\nSize|36|38\nBust (cm)|84|88\nEU|40|42", "T\nSize|36|38\nBust (in)|33|34.5\nEU|40|42"},
        {"title over rows", "T (cm)\n|36|38\nBust|84|88\nEU|40|42", "T (in)\n|36|38\nBust|33|34.5\nEU|40|42"},
        {"sizes that are lengths", "T\nSize|Drop\n40 cm|20 cm", "T\nSize|Drop\n40 cm|8 in"},
        {"measures first", "T\nHeight|Size\n160 – 165 cm|S", "T\nHeight|Size\n63 – 65 in|S"},
        {"a title with a measure", "Model: 170 cm\nSize|Bust\nS|84", "Model: 67 in\nSize|Bust\nS|84"},
        {"a title with a measure and a unit", "Model: 170 cm. In cm\nSize|Bust\nS|84",
         "Model: 67 in. In inches\nSize|Bust\nS|33"},
        {"ragged rows", "T\nSize|Bust (cm)\nS|84|85|86\n\nM", "T\nSize|Bust (in)\nS|33|85|86\n\nM"},

        // A number that cannot be converted keeps the unit it stands under.
        {"one cell spoils its column", "T\nSize|Bust (cm)|Hip (cm)\nS|84/88|92\nM|88|96",
         "T\nSize|Bust (cm)|Hip (in)\nS|84/88|36\nM|88|38"},
        {"one cell spoils the title", "T (cm)\nSize (cm)|Bust|Hip\n36|84/88|92",
         "T (cm)\nSize (cm)|Bust|Hip\n36|84/88|92"},
        {"one cell spoils the corner", "T\nMeasures (cm)|S|M\nBust|84/88|92", "T\nMeasures (cm)|S|M\nBust|84/88|92"},
        {"corner in both units", "T (cm)\nSize (cm / in)|Bust\nS|84", "T (in)\nSize (cm / in)|Bust\nS|33"},
        {"numbers in the first row are no headings", "T (cm)\nS|84 – 88\nM|88 – 92", "T (cm)\nS|84 – 88\nM|88 – 92"},
        {"its own unit spoils nothing", "T (cm)\nSize|Bust|Hip\nS|84 cm|6'2\nM|20 mm|\u2013",
         "T (in)\nSize|Bust|Hip\nS|33 in|6'2\nM|20 mm|\u2013"},
    };
    for (const Row& row : rows) {
        EXPECT_EQ(written(sizeTable(table(row.metric), metric)), row.metric) << row.why;
        EXPECT_EQ(written(sizeTable(table(row.metric), imperial)), row.imperial) << row.why;
    }
}

} // namespace loom
