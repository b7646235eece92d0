#include "TestEngine.h"

#include <QColor>
#include <QMetaProperty>
#include <QQmlComponent>
#include <QQmlEngine>
#include <gtest/gtest.h>

#include <cmath>
#include <memory>

namespace loom
{

namespace
{

double luminance(const QColor& colour)
{
    const auto linear = [](double channel) {
        return channel <= 0.04045 ? channel / 12.92 : std::pow((channel + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(colour.redF()) + 0.7152 * linear(colour.greenF()) + 0.0722 * linear(colour.blueF());
}

double contrast(const QColor& a, const QColor& b)
{
    const auto [dark, light] = std::minmax({luminance(a), luminance(b)});
    return (light + 0.05) / (dark + 0.05);
}

/// Theme, fresh for each test, by the names of its properties.
class ThemeTokensTest : public testing::Test
{
protected:
    void SetUp() override
    {
        m_engine = std::make_unique<QQmlEngine>();
        prepareTestEngine(*m_engine);
        QQmlComponent component(m_engine.get());
        component.setData("import QtQml\nimport Loomstreet.Theme\nQtObject { property QtObject theme: Theme }", {});
        m_holder.reset(component.create());
        ASSERT_NE(m_holder, nullptr) << component.errorString().toStdString();
        m_theme = m_holder->property("theme").value<QObject*>();
    }

    [[nodiscard]] QVariant value(const QString& name) const
    {
        const QVariant found = m_theme->property(name.toLatin1().constData());
        EXPECT_TRUE(found.isValid()) << "Theme lacks " << name.toStdString();
        return found;
    }

    void set(const char* name, const QVariant& value) const { m_theme->setProperty(name, value); }

    std::unique_ptr<QQmlEngine> m_engine;
    std::unique_ptr<QObject> m_holder;
    QObject* m_theme = nullptr;
};

TEST_F(ThemeTokensTest, WhatIsReadOrReachedStandsOutFromWhatItLiesOn)
{
    struct Row {
        const char* colour;
        const char* grounds;
        double needed;
    };
    for (const Row& row : {
             Row{"ink", "paper surface frame sunken hover pressed accentTint", 4.5},
             Row{"muted", "paper surface frame sunken hover pressed", 4.5},
             Row{"placeholder", "surface sunken", 4.5},
             Row{"accent", "paper surface sunken accentTint frame", 4.5},
             Row{"accentInk", "accent accentHover accentPressed", 4.5},
             Row{"primaryInk", "primary primaryHover primaryPressed", 4.5},
             Row{"sale", "paper surface sunken", 4.5},
             Row{"success", "paper surface successTint", 4.5},
             Row{"warning", "paper surface warningTint", 4.5},
             Row{"danger", "paper surface dangerTint", 4.5},
             Row{"focus", "paper surface frame sunken accentTint", 3},
             Row{"border", "paper surface sunken", 3},
         }) {
        for (const char* const mode : {"light", "dark"}) {
            set("appearance", QLatin1String(mode));
            const auto colour = value(QLatin1String(row.colour)).value<QColor>();
            for (const QString& ground : QString::fromLatin1(row.grounds).split(u' '))
                EXPECT_GE(contrast(colour, value(ground).value<QColor>()), row.needed)
                    << row.colour << " on " << ground.toStdString() << ", " << mode;
        }
    }
}

TEST_F(ThemeTokensTest, WithReducedMotionNothingTakesTimeAndNothingTravels)
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
    EXPECT_GT(checked, 10);
}

} // namespace

} // namespace loom
