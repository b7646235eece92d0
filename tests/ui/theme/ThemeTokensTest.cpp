#include "ThemeFixture.h"

#include <QColor>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QMetaProperty>
#include <QRegularExpression>
#include <QSizeF>

#include <cmath>

namespace loom
{

namespace
{

/// The design's table of tokens.
QJsonObject tokens()
{
    static const QJsonObject table = [] {
        QFile file(QStringLiteral(LOOM_TOKENS_FILE));
        return file.open(QIODevice::ReadOnly) ? QJsonDocument::fromJson(file.readAll()).object() : QJsonObject();
    }();
    return table;
}

/// The name that a path of keys has in Theme: "card", "gapX" is cardGapX.
QString joined(const QString& group, QString key)
{
    key.replace(u'.', u'_');
    return group + key.left(1).toUpper() + key.mid(1);
}

double luminance(const QColor& colour)
{
    const auto linear = [](double channel) {
        return channel <= 0.04045 ? channel / 12.92 : std::pow((channel + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(colour.redF()) + 0.7152 * linear(colour.greenF()) + 0.0722 * linear(colour.blueF());
}

double contrast(const QColor& a, const QColor& b)
{
    const double first = luminance(a);
    const double second = luminance(b);
    return (std::max(first, second) + 0.05) / (std::min(first, second) + 0.05);
}

class ThemeTokensTest : public ThemeFixture
{
protected:
    /// A number, or a pair of numbers, or a ratio of two.
    void expectEqual(const QString& name, const QJsonValue& token) const
    {
        const QVariant found = value(name);
        if (token.isArray()) {
            const QSizeF size = found.toSizeF();
            EXPECT_EQ(size.width(), token[0].toDouble()) << name.toStdString();
            EXPECT_EQ(size.height(), token[1].toDouble()) << name.toStdString();
        } else if (token.isString()) {
            const QStringList parts = token.toString().split(u':');
            EXPECT_DOUBLE_EQ(found.toDouble(), parts[0].toDouble() / parts.value(1).toDouble()) << name.toStdString();
        } else {
            EXPECT_DOUBLE_EQ(found.toDouble(), token.toDouble()) << name.toStdString();
        }
    }

    void expectGroup(const QString& group, const QJsonObject& table) const
    {
        for (auto token = table.begin(); token != table.end(); ++token) {
            if (token->isObject())
                expectGroup(joined(group, token.key()), token->toObject());
            else
                expectEqual(joined(group, token.key()), *token);
        }
    }
};

TEST_F(ThemeTokensTest, EverySizeOfTheTableHasItsNameAndValueAndThereAreNoOthers)
{
    const QJsonObject motion = tokens()[u"motion"].toObject();
    for (const QString& group : {QStringLiteral("space"), QStringLiteral("radius"), QStringLiteral("stroke"),
                                 QStringLiteral("layout"), QStringLiteral("card"), QStringLiteral("target")})
        expectGroup(group, tokens()[group].toObject());
    expectGroup(QStringLiteral("duration"), motion[u"durations"].toObject());
    expectGroup(QStringLiteral("distance"), motion[u"distances"].toObject());

    const QJsonObject breakpoints = tokens()[u"breakpoints"].toObject();
    const auto number = [&breakpoints](const char* key) {
        static const QRegularExpression digits(QStringLiteral("\\d+"));
        return digits.match(breakpoints[QLatin1String(key)].toString()).captured().toInt();
    };
    EXPECT_EQ(value(QStringLiteral("breakpointNarrow")).toInt(), number("narrow"));
    EXPECT_EQ(value(QStringLiteral("breakpointWide")).toInt(), number("wide"));
    for (const char* key : {"minimumWindow", "defaultWindow", "splitPreviewFrom"})
        expectEqual(joined(QStringLiteral("breakpoint"), QLatin1String(key)), breakpoints[QLatin1String(key)]);

    const QJsonObject curves = motion[u"curves"].toObject();
    for (auto curve = curves.begin(); curve != curves.end(); ++curve) {
        QJsonArray wanted = curve->toArray();
        wanted << 1 << 1;
        EXPECT_EQ(QJsonArray::fromVariantList(value(joined(QStringLiteral("curve"), curve.key())).toList()), wanted);
    }

    static const QRegularExpression token(
        QStringLiteral("^(space|radius|stroke|layout|card|target|duration|distance|breakpoint|curve)[A-Z0-9]"));
    for (int i = 0; i < m_theme->metaObject()->propertyCount(); ++i) {
        const QString name = QString::fromLatin1(m_theme->metaObject()->property(i).name());
        EXPECT_TRUE(!token.match(name).hasMatch() || m_seen.contains(name)) << name.toStdString() << " is not a token";
    }
}

TEST_F(ThemeTokensTest, EveryColourAndOpacityOfBothAppearancesIsTheTables)
{
    for (const QString& mode : {QStringLiteral("light"), QStringLiteral("dark")}) {
        set("appearance", mode);
        const QJsonObject colours = tokens()[u"colour"][mode].toObject();
        EXPECT_EQ(colours.size(), 31);
        for (auto colour = colours.begin(); colour != colours.end(); ++colour)
            EXPECT_EQ(value(colour.key()).value<QColor>().name(QColor::HexRgb).toUpper(), colour->toString())
                << mode.toStdString() << " " << colour.key().toStdString();

        const QJsonObject alphas = tokens()[u"alpha"].toObject();
        for (auto alpha = alphas.begin(); alpha != alphas.end(); ++alpha)
            expectEqual(joined(QStringLiteral("alpha"), alpha.key()), alpha->isObject() ? (*alpha)[mode] : *alpha);
    }
}

TEST_F(ThemeTokensTest, EveryPairOfColoursIsAsFarApartAsTheTableSays)
{
    for (const QString& mode : {QStringLiteral("light"), QStringLiteral("dark")}) {
        set("appearance", mode);
        const QJsonObject pairs = tokens()[u"contrast"][mode].toObject();
        ASSERT_FALSE(pairs.isEmpty());
        for (auto pair = pairs.begin(); pair != pairs.end(); ++pair) {
            const QStringList names = pair.key().split(QStringLiteral(" on "));
            const double ratio = contrast(value(names[0]).value<QColor>(), value(names[1]).value<QColor>());
            EXPECT_NEAR(ratio, (*pair)[0].toDouble(), 0.011) << mode.toStdString() << " " << pair.key().toStdString();
            EXPECT_GE(ratio, (*pair)[1].toDouble()) << mode.toStdString() << " " << pair.key().toStdString();
        }
    }
}

TEST_F(ThemeTokensTest, EveryShadowOfBothAppearancesIsTheTables)
{
    static const QRegularExpression form(
        QStringLiteral("^(\\d+) (\\d+) (\\d+) rgba\\((\\d+),(\\d+),(\\d+),([.\\d]+)\\)$"));
    for (const QString& mode : {QStringLiteral("light"), QStringLiteral("dark")}) {
        set("appearance", mode);
        const QJsonObject shadows = tokens()[u"shadow"][mode].toObject();
        for (auto shadow = shadows.begin(); shadow != shadows.end(); ++shadow) {
            const auto* style = value(joined(QStringLiteral("shadow"), shadow.key())).value<QObject*>();
            if (shadow->toString() == u"none") {
                EXPECT_EQ(style, nullptr);
                continue;
            }
            const QRegularExpressionMatch match = form.match(shadow->toString());
            ASSERT_TRUE(match.hasMatch() && style) << shadow.key().toStdString();
            EXPECT_EQ(style->property("x").toInt(), match.captured(1).toInt());
            EXPECT_EQ(style->property("y").toInt(), match.captured(2).toInt());
            EXPECT_EQ(style->property("blur").toInt(), match.captured(3).toInt());
            const auto colour = style->property("color").value<QColor>();
            EXPECT_EQ(colour.red(), match.captured(4).toInt());
            EXPECT_EQ(colour.blue(), match.captured(6).toInt());
            EXPECT_NEAR(colour.alphaF(), match.captured(7).toDouble(), 0.003) << shadow.key().toStdString();
        }
    }
}

TEST_F(ThemeTokensTest, StylesOfTypeAreTheTablesAndFollowTheShoppersTextSize)
{
    const auto* scale = value(QStringLiteral("type")).value<QObject*>();
    const QJsonObject styles = tokens()[u"type"].toObject();
    for (const double factor : {1.0, 2.0}) {
        set("textScale", factor);
        for (auto style = styles.begin(); style != styles.end(); ++style) {
            const auto* found = scale->property(style.key().toLatin1().constData()).value<QObject*>();
            ASSERT_NE(found, nullptr) << style.key().toStdString();
            EXPECT_EQ(found->property("face").toString(), (*style)[u"face"].toString());
            EXPECT_EQ(found->property("size").toDouble(), (*style)[u"size"].toDouble() * factor);
            EXPECT_EQ(found->property("line").toDouble(), (*style)[u"line"].toDouble() * factor);
            EXPECT_EQ(found->property("weight").toInt(), (*style)[u"weight"].toInt());
            EXPECT_DOUBLE_EQ(found->property("tracking").toDouble(), (*style)[u"tracking"].toDouble());
        }
    }
}

} // namespace

} // namespace loom
