#include "ui/theme/Fonts.h"
#include "ui/theme/Scripts.h"
#include "ui/theme/TypeScale.h"

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

TEST_F(FontsTest, LettersBesideFiguresAreInters)
{
    EXPECT_EQ(familiesOf(QStringLiteral("128 pieces"), font(figures, 14, 400)),
              (QStringList{QStringLiteral("Inter"), figures}));
}

struct Sample {
    int script;
    QString text;
    QString sans;
    QString serif;
};

QList<Sample> samples(const QString& han)
{
    const QString sansHan = QStringLiteral("Noto Sans CJK ") + han;
    const QString serifHan = QStringLiteral("Noto Serif CJK ") + han;
    return {
        {Scripts::Plain, QString::fromUtf8("Đặt ưỡ Φόρεμα їґ şğ"), QStringLiteral("Inter"), display},
        {Scripts::Hebrew, QString::fromUtf8("שמלה"), QStringLiteral("Noto Sans Hebrew"),
         QStringLiteral("Noto Serif Hebrew")},
        {Scripts::Arabic, QString::fromUtf8("فستان"), QStringLiteral("Noto Sans Arabic"),
         QStringLiteral("Noto Naskh Arabic")},
        {Scripts::Devanagari, QString::fromUtf8("पोशाक"), QStringLiteral("Noto Sans Devanagari"),
         QStringLiteral("Noto Serif Devanagari")},
        {Scripts::Thai, QString::fromUtf8("ชุดเดรส"), QStringLiteral("Noto Sans Thai"),
         QStringLiteral("Noto Serif Thai")},
        {Scripts::Han, QString::fromUtf8("直骨化"), sansHan, serifHan},
        {Scripts::Han, QString::fromUtf8("ワンピース"), sansHan, serifHan},
        {Scripts::Han, QString::fromUtf8("원피스"), sansHan, serifHan},
    };
}

TEST_F(FontsTest, EveryScriptHasASansAndASerifAndHanIsThatOfTheWindowsLanguage)
{
    TypeScale scale;
    const auto family = [](QString name) {
        return name.remove(QStringLiteral(" 12")).toLower();
    };
    // There and back: what was looked up for one language must not be found for the next.
    for (const auto& [language, han] : {std::pair{"en", "SC"},
                                        {"ja", "JP"},
                                        {"zh-Hans", "SC"},
                                        {"ko", "KR"},
                                        {"zh-Hant", "TC"},
                                        {"hi", "SC"},
                                        {"ja", "JP"}}) {
        scale.setLanguage(QString::fromLatin1(language));
        const auto* const body = scale.property("body").value<TypeStyle*>();
        const auto* const title = scale.property("title").value<TypeStyle*>();
        for (const Sample& sample : samples(QString::fromLatin1(han))) {
            const auto drawn = [&](const QString& with, int size) {
                return family(familiesOf(QString(sample.text).remove(u' '), font(with, size, 400)).join(u','));
            };
            EXPECT_EQ(drawn(body->family(), 14), sample.sans.toLower()) << language;
            EXPECT_EQ(drawn(scale.figuresFamily(), 14), sample.sans.toLower()) << language;
            EXPECT_EQ(drawn(title->family(), 40), sample.serif.toLower()) << language;
        }
    }
}

TEST_F(FontsTest, WhatIsKnownOfTheFamiliesIsWhatTheyMeasure)
{
    TypeScale scale;
    scale.setLanguage(QStringLiteral("hi"));
    for (const char* const name : {"body", "title"}) {
        const auto* const style = scale.property(name).value<TypeStyle*>();
        const double own = QFontMetricsF(font(style->family(), 1000, 400)).ascent() / 1000;
        QList<Sample> all = samples(QStringLiteral("SC"));
        all.append({Scripts::Marks, QStringLiteral("\u200f48\u200e"), {}, {}});
        all.append({Scripts::Isolates, QStringLiteral("\u206848\u2069"), {}, {}});
        all.append({Scripts::NarrowSpace, QStringLiteral("L\u202f?"), {}, {}});
        for (const Sample& sample : all) {
            EXPECT_EQ(Scripts().of(sample.text), sample.script) << sample.text.toStdString();
            QTextLayout layout(sample.text + u'L', font(style->family(), 1000, 400));
            layout.beginLayout();
            const QTextLine line = layout.createLine();
            layout.endLayout();
            EXPECT_NEAR(line.ascent() / 1000 - own, style->rise(sample.script), 0.002)
                << name << " " << sample.text.toStdString();
        }
    }
}

TEST_F(FontsTest, LinesHoldTheirTallestLetters)
{
    for (const auto& [language, text] : {std::pair{"th", "กี่ปั๊มญู"}, {"hi", "र्कैंहृदय"}, {"vi", "ẬẪữợ"}, {"ja", "鬱驚"}}) {
        TypeScale scale;
        scale.setLanguage(QString::fromLatin1(language));
        for (const char* const name : {"hero", "section", "body", "label", "caption", "overline"}) {
            const auto* const style = scale.property(name).value<TypeStyle*>();
            const QFont used = font(style->family(), 100, style->weight());
            EXPECT_LE(QFontMetricsF(used).tightBoundingRect(QString::fromUtf8(text)).height() * style->size() / 100,
                      style->line())
                << language << " " << name;
        }
    }
}

} // namespace

} // namespace loom
