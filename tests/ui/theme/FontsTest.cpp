#include "ui/theme/Fonts.h"

#include <QFont>
#include <QFontInfo>
#include <QFontMetricsF>
#include <QGlyphRun>
#include <QRawFont>
#include <QTextLayout>
#include <gtest/gtest.h>

namespace loom
{

namespace
{

const QString figures = QStringLiteral("Loomstreet Figures");
const QString display = QStringLiteral("Loomstreet Display");

QFont font(const QString& family, int size, int weight)
{
    QFont font(family);
    font.setPixelSize(size);
    font.setWeight(QFont::Weight(weight));
    font.setHintingPreference(QFont::PreferNoHinting);
    return font;
}

/// The families that draw a text, in the order of their runs.
QStringList familiesOf(const QString& text, const QFont& font)
{
    QTextLayout layout(text, font);
    layout.beginLayout();
    layout.createLine().setLineWidth(1000);
    layout.endLayout();
    QStringList families;
    for (const QGlyphRun& run : layout.glyphRuns())
        families.append(run.rawFont().familyName());
    families.removeDuplicates();
    families.sort();
    return families;
}

class FontsTest : public testing::Test
{
protected:
    static void SetUpTestSuite() { registerFonts(); }
};

TEST_F(FontsTest, FiguresAreEquallyWideInEveryWeightAndPunctuationStaysTheirs)
{
    for (const int weight : {400, 500, 600}) {
        const QFont used = font(figures, 28, weight);
        EXPECT_EQ(QFontInfo(used).family(), figures);
        const QFontMetricsF metrics(used);
        for (const QChar digit : QStringLiteral("0123456789"))
            EXPECT_DOUBLE_EQ(metrics.horizontalAdvance(digit), metrics.horizontalAdvance(u'0'))
                << weight << " " << digit.toLatin1();
        EXPECT_EQ(familiesOf(QStringLiteral("$1,248.00 – 50 % ½ €"), used), QStringList{figures});
    }
    EXPECT_NE(QRawFont::fromFont(font(figures, 28, 400)).styleName(),
              QRawFont::fromFont(font(figures, 28, 600)).styleName());
}

TEST_F(FontsTest, LettersBesideFiguresAreIntersAndArabicAndHanHaveTheirOwn)
{
    const QFont used = font(figures, 14, 400);
    EXPECT_EQ(familiesOf(QStringLiteral("128 pieces"), used), (QStringList{QStringLiteral("Inter"), figures}));
    EXPECT_EQ(familiesOf(QString::fromUtf8("فستان"), used), QStringList{QStringLiteral("Noto Sans Arabic")});
    EXPECT_EQ(familiesOf(QString::fromUtf8("فستان"), font(display, 40, 400)),
              QStringList{QStringLiteral("Noto Naskh Arabic")});
    EXPECT_EQ(familiesOf(QString::fromUtf8("東京"), used), QStringList{QStringLiteral("Noto Sans CJK SC")});
}

} // namespace

} // namespace loom
