#include "ui/shell/ScreenshotSaver.h"

#include "support/Running.h"

#include <QDir>
#include <QImage>
#include <QQuickWindow>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace loom
{

TEST(ScreenshotSaverTest, PicturesOfOneMomentAreKeptApart)
{
    QQuickWindow window;
    window.setColor(Qt::darkGreen);
    window.resize(40, 30);
    window.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&window));
    window.contentItem()->setSize(window.size());

    const QTemporaryDir home;
    const QDir folder(home.path() + QStringLiteral("/not there yet"));
    ScreenshotSaver saver;
    const QSignalSpy saved(&saver, &ScreenshotSaver::saved);
    const QSignalSpy failed(&saver, &ScreenshotSaver::failed);
    for (int i = 0; i < 3; ++i)
        saver.save(window.contentItem(), folder.filePath(QStringLiteral("Shop at 21.52.06.png")));
    waitUntil([&] { return saved.count() == 3; }, "all are saved");
    const QStringList names{QStringLiteral("Shop at 21.52.06 (2).png"), QStringLiteral("Shop at 21.52.06 (3).png"),
                            QStringLiteral("Shop at 21.52.06.png")};
    EXPECT_EQ(folder.entryList(QDir::Files, QDir::Name), names);
    QStringList told;
    for (const QList<QVariant>& arguments : saved)
        told.append(QFileInfo(arguments.at(0).toString()).fileName());
    EXPECT_THAT(told, testing::UnorderedElementsAreArray(names));
    for (const QString& name : names)
        EXPECT_EQ(QImage(folder.filePath(name)).size(), window.size()) << name.toStdString();

    saver.save(window.contentItem(), home.path() + QStringLiteral("/not there yet/") + names[0] + "/a.png");
    waitUntil([&] { return failed.count() == 1; }, "the last is refused");
}

} // namespace loom
