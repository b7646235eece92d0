#include "release/InstallJob.h"

#include "Files.h"
#include "base/JsonReader.h"

#include <QJsonDocument>
#include <QTemporaryDir>

#include <gmock/gmock.h>
#include <sys/stat.h>

using namespace loom;

namespace
{

const InstallJob job{.version = QStringLiteral("1.5.0"),
                     .build = 320,
                     .relaunch = true,
                     .createdAt = QDateTime(QDate(2026, 11, 22), QTime(6, 30, 0, 250), Qt::UTC),
                     .processIdentifier = 4711,
                     .image = QStringLiteral("/home/j/updates/loomstreet-1.5.0-320.squashfs"),
                     .sha256 = QString(64, QLatin1Char('a')),
                     .folder = QStringLiteral("/home/j/Ünïcode folder/loomstreet")};
const InstallTrial trial{.version = QStringLiteral("1.5.0"),
                         .build = 320,
                         .folder = QStringLiteral("/home/j/loomstreet"),
                         .previous = QStringLiteral("/home/j/.loomstreet-staged-x1Y2z3"),
                         .starts = 1};

class InstallJobTest : public testing::Test
{
protected:
    [[nodiscard]] QString file(const char* name) const { return folder.filePath(QLatin1String(name)); }

    QTemporaryDir folder;
};

} // namespace

TEST_F(InstallJobTest, WhatOneProgramWritesTheOtherReads)
{
    const InstallResult result{
        .code = InstallResult::Code::NotWritable, .path = QStringLiteral("/opt/loomstreet"), .relaunch = true};
    ASSERT_TRUE(write(job, folder.path()));
    ASSERT_TRUE(write(result, folder.path()));
    ASSERT_TRUE(write(trial, folder.path()));
    EXPECT_EQ(readInstallJob(folder.path()), job);
    EXPECT_EQ(readInstallResult(folder.path()), result);
    EXPECT_EQ(readInstallTrial(folder.path()), trial);

    EXPECT_EQ(contentOf(file("install-result.json")),
              R"({"code":"not-writable","path":"/opt/loomstreet","relaunch":true})");
    const QJsonObject written = QJsonDocument::fromJson(contentOf(file("install-job.json"))).object();
    EXPECT_EQ(written[QStringLiteral("createdAt")].toString(), QStringLiteral("2026-11-22T06:30:00.250Z"));
    EXPECT_EQ(written[QStringLiteral("processIdentifier")].toInt(), 4711);
    struct stat facts = {};
    ASSERT_EQ(lstat(QFile::encodeName(file("install-job.json")).constData(), &facts), 0);
    EXPECT_EQ(facts.st_mode & 07777, 0600U);
    EXPECT_THAT(QDir(folder.path()).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot),
                testing::SizeIs(3));

    EXPECT_TRUE(removeInstallTrial(folder.path()));
    EXPECT_TRUE(removeInstallTrial(folder.path()));
    EXPECT_EQ(readInstallTrial(folder.path()), std::nullopt);
    EXPECT_FALSE(write(job, folder.filePath(QStringLiteral("missing"))));
}

TEST_F(InstallJobTest, EveryCodeHasItsNameAndAnUnknownOneIsAFailure)
{
    for (const char* const name :
         {"installed", "busy", "not-writable", "no-space", "bad-image", "does-not-start", "failed", "out-of-luck"}) {
        writeFile(file("install-result.json"),
                  "{\"code\":\"" + QByteArray(name) + "\",\"path\":\"/x\",\"relaunch\":false}");
        const auto result = readInstallResult(folder.path());
        ASSERT_TRUE(result);
        const QString expected = QLatin1String(name == std::string_view("out-of-luck") ? "failed" : name);
        EXPECT_EQ(toJson(*result)[QStringLiteral("code")].toString(), expected);
    }
}

TEST_F(InstallJobTest, ARecordWithoutSenseIsNone)
{
    struct Row {
        const char* key;
        QJsonValue value;
    };
    const std::vector<Row> jobs{{"version", QString()},
                                {"build", -1},
                                {"relaunch", QStringLiteral("yes")},
                                {"createdAt", QStringLiteral("yesterday")},
                                {"processIdentifier", 0},
                                {"processIdentifier", 4294968007.0},
                                {"image", QStringLiteral("image.squashfs")},
                                {"sha256", QString(64, QLatin1Char('A'))},
                                {"sha256", QString(63, QLatin1Char('a'))},
                                {"folder", QStringLiteral("/")},
                                {"folder", QStringLiteral("/home/j/loomstreet/")},
                                {"folder", QStringLiteral("/home/j/../k")},
                                {"folder", QStringLiteral("/home/j\0x").append(QChar::Null)}};
    for (const Row& row : jobs) {
        QJsonObject json = toJson(job);
        json[QLatin1String(row.key)] = row.value;
        writeFile(file("install-job.json"), QJsonDocument(json).toJson());
        EXPECT_EQ(readInstallJob(folder.path()), std::nullopt) << row.key << ' ' << row.value.toString().toStdString();
    }
    // What is named as the release before may be removed.
    const std::vector<Row> trials{{"previous", QStringLiteral("/home/j")},
                                  {"previous", QStringLiteral("/home/k/.loomstreet-staged-x")},
                                  {"previous", QStringLiteral("/home/j/.loomstreet-staged-/../x")},
                                  {"previous", trial.folder},
                                  {"starts", -1},
                                  {"starts", 1e12}};
    for (const Row& row : trials) {
        QJsonObject json = toJson(trial);
        json[QLatin1String(row.key)] = row.value;
        writeFile(file("install-trial.json"), QJsonDocument(json).toJson());
        EXPECT_EQ(readInstallTrial(folder.path()), std::nullopt) << row.key;
    }
}

TEST_F(InstallJobTest, ATruncatedOrForeignFileIsNone)
{
    ASSERT_TRUE(write(job, folder.path()));
    const QString path = file("install-job.json");
    const QByteArray whole = contentOf(path);
    for (qsizetype length = 0; length < whole.size(); ++length) {
        writeFile(path, whole.first(length));
        EXPECT_EQ(readInstallJob(folder.path()), std::nullopt) << length;
    }
    writeFile(path, whole);
    ASSERT_EQ(readInstallJob(folder.path()), job);

    ASSERT_EQ(chmod(QFile::encodeName(path).constData(), 0662), 0);
    EXPECT_EQ(readInstallJob(folder.path()), std::nullopt) << "that others may write";
    writeFile(path, whole + QByteArray(70'000, ' '));
    EXPECT_EQ(readInstallJob(folder.path()), std::nullopt) << "too large";
    ASSERT_TRUE(QFile::remove(path));
    ASSERT_EQ(mkfifo(QFile::encodeName(path).constData(), 0600), 0);
    EXPECT_EQ(readInstallJob(folder.path()), std::nullopt) << "a pipe nobody writes to";
    ASSERT_TRUE(QFile::remove(path));

    const QString elsewhere = file("elsewhere");
    writeFile(elsewhere, whole);
    ASSERT_TRUE(QFile::link(elsewhere, path));
    EXPECT_EQ(readInstallJob(folder.path()), std::nullopt) << "a link";
    InstallJob later = job;
    later.build = 321;
    ASSERT_TRUE(write(later, folder.path()));
    EXPECT_EQ(readInstallJob(folder.path()), later);
    EXPECT_EQ(contentOf(elsewhere), whole) << "a link is replaced, not followed";
}
