#include "ThemeFixture.h"

#include <QMetaProperty>

namespace loom
{

namespace
{

using ThemeInputsTest = ThemeFixture;

TEST_F(ThemeInputsTest, ArabicHasTallerLinesAndNeitherTrackingNorCapitals)
{
    set("arabicScript", true);
    const auto* overline = value(QStringLiteral("type")).value<QObject*>()->property("overline").value<QObject*>();
    EXPECT_EQ(overline->property("line").toInt(), 20);
    EXPECT_EQ(overline->property("tracking").toDouble(), 0);
    EXPECT_FALSE(overline->property("capitals").toBool());
}

TEST_F(ThemeInputsTest, TheDesktopDecidesUntilTheShopperChooses)
{
    struct Row {
        const char* appearance;
        bool systemDark, dark;
    };
    for (const Row& row : {Row{"system", false, false}, Row{"system", true, true}, Row{"light", true, false},
                           Row{"dark", false, true}}) {
        set("appearance", QString::fromLatin1(row.appearance));
        set("systemDark", row.systemDark);
        EXPECT_EQ(value(QStringLiteral("dark")).toBool(), row.dark) << row.appearance << row.systemDark;
    }
}

TEST_F(ThemeInputsTest, WithReducedMotionNothingTakesTimeAndNothingTravels)
{
    set("reducedMotion", true);
    int checked = 0;
    for (int i = 0; i < m_theme->metaObject()->propertyCount(); ++i) {
        const QMetaProperty property = m_theme->metaObject()->property(i);
        const QByteArray name = property.name();
        if (!name.startsWith("duration") && !name.startsWith("distance"))
            continue;
        EXPECT_EQ(property.read(m_theme).toInt(), 0) << name.constData();
        ++checked;
    }
    EXPECT_EQ(checked, 15);
}

} // namespace

} // namespace loom
