#include "ui/components/IconProvider.h"
#include "ui/components/ShadowProvider.h"

#include <QColor>
#include <QDir>
#include <gtest/gtest.h>

namespace loom
{

namespace
{

QStringList warnings;

void collectWarnings(QtMsgType type, const QMessageLogContext&, const QString& text)
{
    if (type == QtWarningMsg)
        warnings.append(text);
}

bool isEmpty(const QImage& image)
{
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            if (image.pixelColor(x, y).alpha() != 0)
                return false;
        }
    }
    return true;
}

class IconProviderTest : public testing::Test
{
protected:
    void SetUp() override
    {
        warnings.clear();
        m_previous = qInstallMessageHandler(collectWarnings);
    }
    void TearDown() override { qInstallMessageHandler(m_previous); }

    QImage draw(const QString& id, QSize size = {20, 20})
    {
        QSize drawn;
        const QImage image = m_icons.requestImage(id, &drawn, size);
        EXPECT_EQ(drawn, image.size());
        return image;
    }

    IconProvider m_icons;
    QtMessageHandler m_previous = nullptr;
};

TEST_F(IconProviderTest, EveryIconDrawsSomethingAndKeepsWithinItsGrid)
{
    const QStringList files = QDir(QStringLiteral(":/qt/qml/Loomstreet/Components/icons")).entryList();
    EXPECT_GE(files.size(), 74);
    for (const QString& file : files) {
        const QImage image = draw(QStringLiteral("%1/112233").arg(file.chopped(4)), {80, 80});
        EXPECT_FALSE(isEmpty(image)) << file.toStdString();
        for (int i = 0; i < 80; ++i) {
            EXPECT_EQ(image.pixelColor(i, 0).alpha() + image.pixelColor(i, 79).alpha() +
                          image.pixelColor(0, i).alpha() + image.pixelColor(79, i).alpha(),
                      0)
                << file.toStdString() << " touches its edge";
        }
    }
    EXPECT_EQ(warnings, QStringList());
}

TEST_F(IconProviderTest, AnIconHasTheColourAndTheSizeAskedFor)
{
    for (const QSize size : {QSize(20, 20), QSize(16, 16), QSize(40, 40)}) {
        const QImage image = draw(QStringLiteral("minus/A1251F"), size);
        EXPECT_EQ(image.size(), size);
        // Half-covered pixels lose a little to rounding.
        const QColor ink = image.pixelColor(size.width() / 2, size.height() / 2);
        EXPECT_NEAR(ink.red(), 0xA1, 2);
        EXPECT_NEAR(ink.green(), 0x25, 2);
        EXPECT_NEAR(ink.blue(), 0x1F, 2);
    }
    EXPECT_EQ(draw(QStringLiteral("minus/A1251F"), {}).size(), QSize(20, 20));
    EXPECT_NE(draw(QStringLiteral("minus/A1251F")), draw(QStringLiteral("minus/1F4D40")));
}

TEST_F(IconProviderTest, AnUnknownNameDrawsNothingAndIsReportedOnce)
{
    for (const char* id : {"no.such.icon/000000", "no.such.icon/FFFFFF", "no.such.icon/000000"})
        EXPECT_TRUE(isEmpty(draw(QLatin1String(id)))) << id;
    EXPECT_EQ(warnings, QStringList{QStringLiteral("There is no icon named \"no.such.icon\".")});
}

TEST_F(IconProviderTest, AnIdThatIsNoIconReachesNoFile)
{
    for (const char* id : {"", "/", "house", "house/", "house/nocolour", "../icons/house/000000", "/house/000000"})
        EXPECT_TRUE(isEmpty(draw(QLatin1String(id)))) << id;
}

TEST(ShadowProviderTest, AShadowIsSymmetricFadesOutwardsAndEndsBeforeItsEdge)
{
    ShadowProvider shadows;
    QSize size;
    const QImage image = shadows.requestImage(QStringLiteral("28/6/34/80000000"), &size, {});
    ASSERT_EQ(size, QSize(125, 125));
    const int middle = 62;
    EXPECT_NEAR(image.pixelColor(middle, middle).alpha(), 128, 3);
    EXPECT_NEAR(image.pixelColor(28, middle).alpha(), 64, 8) << "half as dark at the edge of the box";
    EXPECT_LE(image.pixelColor(0, middle).alpha(), 2);
    EXPECT_EQ(image.pixelColor(0, 0).alpha(), 0);
    for (int x = 0; x < middle; ++x) {
        EXPECT_LE(image.pixelColor(x, middle).alpha(), image.pixelColor(x + 1, middle).alpha());
        EXPECT_NEAR(image.pixelColor(x, middle).alpha(), image.pixelColor(124 - x, middle).alpha(), 2);
        EXPECT_NEAR(image.pixelColor(x, middle).alpha(), image.pixelColor(middle, x).alpha(), 1);
    }
}

TEST(ShadowProviderTest, WhatIsNoShadowGivesNoImageAndNoSizeIsTooLarge)
{
    ShadowProvider shadows;
    for (const char* id : {"", "28", "28/6/34", "28/6/34/red-ish", "28/6/34/80000000/1"})
        EXPECT_TRUE(shadows.requestImage(QLatin1String(id), nullptr, {}).isNull()) << id;
    EXPECT_LE(shadows.requestImage(QStringLiteral("99999/99999/99999/80000000"), nullptr, {}).width(), 1024);
    EXPECT_FALSE(shadows.requestImage(QStringLiteral("-4/-4/-4/80000000"), nullptr, {}).isNull());
}

} // namespace

} // namespace loom
