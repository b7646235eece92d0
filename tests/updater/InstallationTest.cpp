#include "updater/Installation.h"

#include "release/ApplicationFolder.h"
#include "release/InstallLock.h"
#include "updater/Releases.h"
#include "updater/StagedFolder.h"

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QScopeGuard>

#include <functional>
#include <sys/stat.h>
#include <unistd.h>

using namespace loom;
using namespace std::chrono_literals;
using Code = InstallResult::Code;

namespace
{

using InstallationTest = ReleasesTest;

TEST_F(InstallationTest, ANewReleaseTakesThePlaceOfTheOldWhichIsKeptBesideIt)
{
    chmod(QFile::encodeName(folder).constData(), 0750);
    const InstallJob job = jobFor(QStringLiteral("2.0"));
    EXPECT_EQ(installed(job), Code::Installed);
    EXPECT_EQ(treeOf(folder), treeOf(path(QStringLiteral("tree"))));
    struct stat status{};
    ASSERT_EQ(stat(QFile::encodeName(folder).constData(), &status), 0);
    EXPECT_EQ(status.st_mode & 07777U, 0750U) << "as the shopper had it";
    const auto trial = readInstallTrial(working);
    ASSERT_TRUE(trial);
    EXPECT_EQ(
        *trial,
        (InstallTrial{.version = QStringLiteral("2.0"), .build = 2, .folder = folder, .previous = trial->previous}));
    EXPECT_EQ(treeOf(trial->previous), oldTree);
    EXPECT_EQ(apps().size(), 2);

    // The same job again, as after a helper that was killed before it could write its result.
    QFile::remove(working + QLatin1Char('/') + QLatin1String(InstallResult::fileName));
    EXPECT_EQ(installed(job), Code::Installed);
    EXPECT_EQ(readInstallTrial(working), trial);
    EXPECT_EQ(treeOf(trial->previous), oldTree);

    // The next release comes before this one has proved itself: it is the one to come back.
    EXPECT_EQ(installed(jobFor(QStringLiteral("3.0"))), Code::Installed);
    EXPECT_EQ(apps().size(), 2);
    EXPECT_EQ(ApplicationFolder::read(readInstallTrial(working)->previous)->version, QStringLiteral("2.0"));
}

TEST_F(InstallationTest, WhateverIsWrongWithAReleaseTheOldOneStays)
{
    struct Case {
        const char* what;
        Code code;
        std::function<void(InstallJob&)> spoil = {};
        QByteArray answer = {};
        InstallSettings settings = {};
    };
    const auto repack = [this](InstallJob& job, const std::function<void(const QString&)>& spoil) {
        spoil(path(QStringLiteral("tree/")));
        makeImage(path(QStringLiteral("tree")), job.image);
        job.sha256 = jobWith(job.image, job.version, 2).sha256;
    };
    const std::vector<Case> cases{
        {"another checksum", Code::BadImage,
         [](InstallJob& job) {
             job.sha256.replace(0, 4, QStringLiteral("0000"));
         }},
        {"no image", Code::BadImage,
         [](InstallJob& job) {
             QFile::remove(job.image);
         }},
        {"a link to the image", Code::BadImage,
         [](InstallJob& job) {
             QFile::rename(job.image, job.image + QStringLiteral(".real"));
             QFile::link(job.image + QStringLiteral(".real"), job.image);
         }},
        {"changed afterwards", Code::BadImage,
         [](InstallJob& job) {
             put(job.image, contentOf(job.image) + ' ');
         }},
        {"not an image", Code::BadImage,
         [this](InstallJob& job) {
             put(job.image, QByteArray(9000, 'x'));
             job.sha256 = jobWith(job.image, job.version, 2).sha256;
         }},
        {"another version", Code::BadImage,
         [](InstallJob& job) {
             job.version = QStringLiteral("2.0.0");
         }},
        {"another build", Code::BadImage,
         [](InstallJob& job) {
             job.build = 3;
         }},
        {"no release", Code::BadImage,
         [&](InstallJob& job) {
             repack(job, [](const QString& tree) { QFile::remove(tree + QStringLiteral("release.json")); });
         }},
        {"no program", Code::DoesNotStart,
         [&](InstallJob& job) {
             repack(job, [](const QString& tree) { QFile::remove(tree + QStringLiteral("bin/loomstreet")); });
         }},
        {"a failing program", Code::DoesNotStart, {}, "echo 2.0; exit 3"},
        {"the version of another", Code::DoesNotStart, {}, "echo LOOMSTREET 12.0; exit"},
        {"a hanging program", Code::DoesNotStart, {}, "echo 2.0; sleep 600", {.answer = 100ms}},
        {"a full disk", Code::NoSpace, {}, {}, {.limits = {.spare = std::numeric_limits<qint64>::max()}}},
        {"a link for a folder", Code::Failed,
         [this](InstallJob& job) {
             job.folder = path(QStringLiteral("link"));
             QFile::link(folder, job.folder);
         }},
        {"no release to replace", Code::Failed,
         [this](InstallJob& job) {
             job.folder = path(QStringLiteral("photos"));
             put(job.folder + QStringLiteral("/cat.jpeg"), "cat");
         }},
        {"a process that does not end",
         Code::Busy,
         [](InstallJob& job) { job.processIdentifier = getpid(); },
         {},
         {.end = 10ms}}};
    for (const Case& wrong : cases) {
        SCOPED_TRACE(wrong.what);
        InstallJob job = jobFor(QStringLiteral("2.0"), 2, wrong.answer);
        if (wrong.spoil)
            wrong.spoil(job);
        EXPECT_EQ(installed(job, wrong.settings), wrong.code);
        expectUntouched();
    }
    EXPECT_EQ(contentOf(path(QStringLiteral("photos/cat.jpeg"))), "cat");
    InstallJob job = jobFor(QStringLiteral("2.0"));
    job.build = 0;
    EXPECT_EQ(installed(job), Code::Installed) << "of a release that was announced without a build number";
}

TEST_F(InstallationTest, WhileAnotherInstanceRunsOrIsOnTrialNothingIsReplaced)
{
    const InstallJob job = jobFor(QStringLiteral("2.0"));
    put(folder + QStringLiteral("/bin/loomstreet"), contentOf(QStringLiteral("/bin/cat")), 0755);
    oldTree = treeOf(folder);
    QProcess instance;
    instance.start(folder + QStringLiteral("/bin/loomstreet"), QStringList());
    ASSERT_TRUE(instance.waitForStarted());
    EXPECT_EQ(installed(job, {.end = 10ms}), Code::Busy);
    expectUntouched();
    instance.closeWriteChannel();
    ASSERT_TRUE(instance.waitForFinished());
    {
        const auto lock = InstallLock::take(working, InstallLock::Work::Trial);
        EXPECT_EQ(installed(job), Code::Busy);
        expectUntouched();
    }
    // Another copy of the application, on trial or about to tell that it was reverted.
    const QString copy = path(QStringLiteral("copy/loomstreet"));
    makeRelease(copy, QStringLiteral("2.0"), 2);
    InstallTrial trial{.version = QStringLiteral("2.0"),
                       .build = 2,
                       .folder = copy,
                       .previous = path(QStringLiteral("copy/.loomstreet-staged-before"))};
    makeRelease(trial.previous, QStringLiteral("1.0"), 1);
    for (const int starts : {0, 2}) {
        trial.starts = starts;
        trial.build = starts == 0 ? 2 : 3;
        ASSERT_TRUE(write(trial, working));
        EXPECT_EQ(installed(job), Code::Busy);
        EXPECT_EQ(readInstallTrial(working), trial);
        EXPECT_EQ(treeOf(folder), oldTree);
    }
    EXPECT_TRUE(ApplicationFolder::read(trial.previous));
    QDir(copy).removeRecursively();
    EXPECT_EQ(installed(job), Code::Installed) << "there is no such copy any more";
    EXPECT_FALSE(QFile::exists(trial.previous));
}

TEST_F(InstallationTest, FoldersThatMayNotBeChangedAreLeftAlone)
{
    constexpr uid_t nobody = 65534;
    const uid_t user = geteuid();
    const InstallJob job = jobFor(QStringLiteral("2.0"));
    const QByteArray own = QFile::encodeName(folder);
    const QByteArray around = QFile::encodeName(path(QStringLiteral("apps")));
    const auto restore = qScopeGuard([&] {
        EXPECT_EQ(seteuid(user), 0);
        chmod(own.constData(), 0755);
        chmod(around.constData(), 0755);
    });
    // The superuser may change any folder, so somebody else tries.
    const auto become = [&](uid_t who) {
        return user != 0 || seteuid(who) == 0;
    };
    if (user == 0) {
        chmod(QFile::encodeName(home.path()).constData(), 0755);
        for (const QByteArray& theirs : {own, around, QFile::encodeName(working), QFile::encodeName(job.image)})
            ASSERT_EQ(chown(theirs.constData(), nobody, nobody), 0);
    }
    for (const auto& [ownMode, aroundMode] : {std::pair<mode_t, mode_t>{0755, 0555}, {0555, 0755}}) {
        chmod(own.constData(), ownMode);
        chmod(around.constData(), aroundMode);
        ASSERT_TRUE(become(nobody));
        EXPECT_EQ(installed(job), Code::NotWritable);
        ASSERT_TRUE(become(user));
        expectUntouched();
    }
    chmod(own.constData(), 0777);
    ASSERT_TRUE(become(nobody));
    EXPECT_TRUE(isReplaceable(folder));
    ASSERT_TRUE(become(user));
    if (user == 0) {
        // Everybody may write there, but move only what is theirs.
        ASSERT_EQ(chown(own.constData(), 0, 0), 0);
        ASSERT_EQ(chown(around.constData(), 0, 0), 0);
        chmod(around.constData(), 01777);
        ASSERT_TRUE(become(nobody));
        EXPECT_FALSE(isReplaceable(folder));
        ASSERT_TRUE(become(user));
    }
    EXPECT_FALSE(isReplaceable(QStringLiteral("/proc"))) << "another disk";
    EXPECT_FALSE(isReplaceable(path(QStringLiteral("missing"))));
}

TEST_F(InstallationTest, WhatKilledHelpersLeftIsRemovedAndNothingElse)
{
    const auto staged = [&](const QString& ofFolder, const QString& ofWorking) {
        const QString made = stagingPrefixOf(ofFolder, ofWorking) + QStringLiteral("abcdef");
        makeRelease(path(QStringLiteral("apps/")) + made, QStringLiteral("2.0"), 2);
        return path(QStringLiteral("apps/")) + made;
    };
    const QString stale = staged(folder, working);
    const QStringList theirs{staged(folder, home.path()), staged(folder + QLatin1Char('2'), working)};
    const QString previous = path(QStringLiteral("apps/.loomstreet-staged-before"));
    makeRelease(previous, QStringLiteral("0.9"), 1);
    put(path(QStringLiteral("apps/.loomstreet-staged-file")), "a file");
    put(path(QStringLiteral("elsewhere/file")), "theirs");
    QFile::link(path(QStringLiteral("elsewhere")), path(QStringLiteral("apps/.loomstreet-staged-link")));
    InstallTrial trial{
        .version = QStringLiteral("1.0"), .build = 1, .folder = folder, .previous = previous, .starts = 1};
    ASSERT_TRUE(write(trial, working));
    removeStaleFolders(folder, working);
    EXPECT_FALSE(QFile::exists(stale));
    EXPECT_EQ(readInstallTrial(working), trial) << "it names the release before";
    EXPECT_TRUE(ApplicationFolder::read(previous));

    // A trial of a release that never came to lie there.
    trial.version = QStringLiteral("2.0");
    ASSERT_TRUE(write(trial, working));
    removeStaleFolders(folder, working);
    EXPECT_FALSE(readInstallTrial(working));
    EXPECT_FALSE(QFile::exists(previous));
    EXPECT_EQ(contentOf(path(QStringLiteral("elsewhere/file"))), "theirs");
    EXPECT_EQ(contentOf(path(QStringLiteral("apps/.loomstreet-staged-file"))), "a file");
    EXPECT_EQ(treeOf(folder), oldTree);
    for (const QString& other : theirs)
        EXPECT_TRUE(ApplicationFolder::read(other)) << "of another copy, or of another data folder";
}

} // namespace
