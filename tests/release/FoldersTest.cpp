#include "Files.h"
#include "release/ApplicationFolder.h"
#include "release/FolderExchange.h"

#include <QTemporaryDir>

#include <sys/stat.h>

using namespace loom;

namespace
{

class FoldersTest : public testing::Test
{
protected:
    void SetUp() override
    {
        makeRelease(application, QStringLiteral("1.4.2"), 312);
        makeRelease(staged, QStringLiteral("1.5.0"), 320);
    }

    [[nodiscard]] static QString versionIn(const QString& folder)
    {
        const auto release = ApplicationFolder::read(folder);
        return release ? release->version : QStringLiteral("none");
    }

    QTemporaryDir parent;
    QString application = QDir(parent.path()).canonicalPath() + QStringLiteral("/loomstreet");
    QString staged = QDir(parent.path()).canonicalPath() + QStringLiteral("/.loomstreet-staged-a1B2c3");
};

} // namespace

TEST_F(FoldersTest, AReleaseIsKnownByItsFileAndItsProgram)
{
    const ApplicationFolder expected{.path = application, .version = QStringLiteral("1.4.2"), .build = 312};
    const QString link = parent.filePath(QStringLiteral("link"));
    ASSERT_TRUE(QFile::link(expected.executable(), link));
    EXPECT_EQ(ApplicationFolder::read(application + QStringLiteral("/bin/..//")), expected);
    EXPECT_EQ(ApplicationFolder::ofProgram(expected.executable()), expected);
    EXPECT_EQ(ApplicationFolder::ofProgram(link), expected);
    for (const QString& program :
         {QStringLiteral("/bin/sh"), application, expected.path + QStringLiteral("/release.json"), QString(),
          expected.executable() + QStringLiteral(" (deleted)")})
        EXPECT_EQ(ApplicationFolder::ofProgram(program), std::nullopt) << program.toStdString();

    for (const QByteArray& content :
         {QByteArray("{"), QByteArray("{\"version\":\"1.4.2\"}"), QByteArray("{\"version\":\"\",\"build\":1}"),
          QByteArray("{\"version\":1,\"build\":1}"), QByteArray("{\"version\":\"1\",\"build\":-1}"),
          QByteArray("{\"version\":\"1\",\"build\":1}") + QByteArray(70'000, ' ')}) {
        writeFile(application + QStringLiteral("/release.json"), content);
        EXPECT_EQ(ApplicationFolder::read(application), std::nullopt) << content.left(40).toStdString();
    }
}

TEST_F(FoldersTest, TwoFoldersTakeEachOthersPlace)
{
    ASSERT_TRUE(exchangeFolders(application, staged));
    EXPECT_EQ(versionIn(application), QStringLiteral("1.5.0"));
    EXPECT_EQ(versionIn(staged), QStringLiteral("1.4.2"));

    const QString link = parent.filePath(QStringLiteral("link"));
    ASSERT_TRUE(QFile::link(staged, link));
    for (const QString& wrong : {link, application + QStringLiteral("/release.json"),
                                 parent.filePath(QStringLiteral("missing")), staged + QLatin1Char('/')}) {
        EXPECT_FALSE(exchangeFolders(application, wrong)) << wrong.toStdString();
        EXPECT_EQ(versionIn(application), QStringLiteral("1.5.0"));
    }
}

TEST_F(FoldersTest, WhatWasStagedIsRemovedAndNothingElse)
{
    const QString inner = staged + QStringLiteral("/locked/inner");
    ASSERT_TRUE(QDir().mkpath(inner));
    writeFile(inner + QStringLiteral("/file"), "x");
    ASSERT_TRUE(QFile::link(application, inner + QStringLiteral("/link")));
    for (const QString& folder : {inner, staged + QStringLiteral("/locked"), staged})
        ASSERT_EQ(chmod(QFile::encodeName(folder).constData(), 0), 0);
    EXPECT_TRUE(removeStaged(staged));
    EXPECT_FALSE(QFileInfo::exists(staged));
    EXPECT_EQ(versionIn(application), QStringLiteral("1.4.2"));
    EXPECT_TRUE(removeStaged(staged)) << "is gone";

    ASSERT_TRUE(QFile::link(application, staged));
    EXPECT_FALSE(removeStaged(staged)) << "a link";
    ASSERT_TRUE(QFile::remove(staged));
    for (const QString& wrong :
         {application, staged + QStringLiteral("/.."), staged + QStringLiteral("/../loomstreet"), QString()})
        EXPECT_FALSE(removeStaged(wrong)) << wrong.toStdString();
    EXPECT_EQ(versionIn(application), QStringLiteral("1.4.2"));
}
