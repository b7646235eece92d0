#include "ThemeFixture.h"

#include <QColor>
#include <QMap>
#include <QMetaProperty>
#include <QPointF>

#include <cmath>

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

using ThemeTokensTest = ThemeFixture;

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

TEST_F(ThemeTokensTest, EveryStyleOfTypeFollowsTheShoppersTextSize)
{
    const auto* scale = value(QStringLiteral("type")).value<QObject*>();
    const auto sizes = [&] {
        QMap<QString, QPointF> found;
        for (int i = 0; i < scale->metaObject()->propertyCount(); ++i) {
            const QMetaProperty property = scale->metaObject()->property(i);
            if (const auto* style = property.read(scale).value<QObject*>(); style && style->property("size").isValid())
                found.insert(QLatin1String(property.name()),
                             QPointF(style->property("size").toDouble(), style->property("line").toDouble()));
        }
        return found;
    };
    set("textScale", 1.0);
    const auto normal = sizes();
    set("textScale", 2.0);
    const auto large = sizes();
    EXPECT_EQ(normal.size(), 18);
    for (auto style = normal.cbegin(); style != normal.cend(); ++style)
        EXPECT_EQ(large.value(style.key()), *style * 2) << style.key().toStdString();
}

} // namespace

} // namespace loom
