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

TEST_F(IconProviderTest, AnIdThatIsNoIconReachesNoFile)
{
    for (const char* id : {"", "/", "house", "house/", "house/nocolour", "../icons/house/000000", "/house/000000"})
        EXPECT_TRUE(isEmpty(draw(QLatin1String(id)))) << id;
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
