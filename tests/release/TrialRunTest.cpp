#include "release/TrialRun.h"

#include "Files.h"
#include "release/FolderExchange.h"

#include <QTemporaryDir>

#include <csignal>
#include <sys/wait.h>
#include <unistd.h>

using namespace loom;

namespace
{

using Verdict = TrialRun::Verdict;

const QString oldVersion = QStringLiteral("1.4.2");
const QString newVersion = QStringLiteral("1.5.0");

/// An application's folder with the new release, the old one beside it, and the working folder.
class TrialRunTest : public testing::Test
{
protected:
    void SetUp() override
    {
        makeRelease(application, newVersion, 320);
        makeRelease(staged, oldVersion, 312);
        ASSERT_TRUE(QDir().mkpath(working));
        writeTrial();
    }

    void writeTrial(int starts = 0)
    {
        ASSERT_TRUE(write(
            InstallTrial{
                .version = newVersion, .build = 320, .folder = application, .previous = staged, .starts = starts},
            working));
    }
    /// A start of what lies in the application's folder.
    [[nodiscard]] std::unique_ptr<TrialRun> start() const
    {
        return std::make_unique<TrialRun>(working, ApplicationFolder::read(application));
    }
    [[nodiscard]] static QString versionIn(const QString& folder)
    {
        const auto release = ApplicationFolder::read(folder);
        return release ? release->version : QStringLiteral("none");
    }
    [[nodiscard]] int starts() const
    {
        const auto trial = readInstallTrial(working);
        return trial ? trial->starts : -1;
    }
    /// What is there besides the application's folder.
    [[nodiscard]] QString remains() const
    {
        return (QFileInfo::exists(staged) ? versionIn(staged) : QString()) +
               (starts() < 0 ? QString() : QStringLiteral(" trial")) +
               (readInstallResult(working) ? QStringLiteral(" result") : QString());
    }

    QTemporaryDir parent;
    QString home = QDir(parent.path()).canonicalPath();
    QString application = home + QStringLiteral("/loomstreet");
    QString staged = home + QStringLiteral("/.loomstreet-staged-a1B2c3");
    QString working = home + QStringLiteral("/updates");
};

} // namespace

TEST_F(TrialRunTest, TwoDeathsBringTheReleaseBeforeBack)
{
    for (const int deaths : {1, 2}) {
        EXPECT_EQ(start()->verdict(), Verdict::OnTrial);
        EXPECT_EQ(starts(), deaths);
    }
    const auto third = start();
    ASSERT_EQ(third->verdict(), Verdict::Revert);
    ASSERT_TRUE(third->revert());
    EXPECT_EQ(versionIn(application), oldVersion);
    EXPECT_EQ(versionIn(staged), newVersion) << "the program that runs keeps its files";

    EXPECT_EQ(start()->verdict(), Verdict::Ordinary);
    EXPECT_EQ(versionIn(application), oldVersion);
    EXPECT_EQ(remains(), QStringLiteral(" result"));
    EXPECT_EQ(readInstallResult(working),
              (InstallResult{.code = InstallResult::Code::DoesNotStart, .path = application, .relaunch = true}));
    ASSERT_TRUE(QFile::remove(working + QLatin1Char('/') + QLatin1String(InstallResult::fileName)));
    EXPECT_EQ(start()->verdict(), Verdict::Ordinary);
    EXPECT_EQ(remains(), QString()) << "told once";
}

TEST_F(TrialRunTest, ARunThatEndsWellDoesNotCountAndOneThatLastsIsTheEndOfIt)
{
    for (int i = 0; i < 3; ++i) {
        const auto run = start();
        EXPECT_EQ(run->verdict(), Verdict::OnTrial);
        run->endedWell();
        run->endedWell();
        EXPECT_EQ(starts(), 0);
    }
    EXPECT_EQ(start()->verdict(), Verdict::OnTrial); // dies
    const auto run = start();
    EXPECT_FALSE(run->revert()) << "once is not enough";
    run->confirm();
    run->endedWell();
    EXPECT_EQ(remains(), QString());
    EXPECT_EQ(versionIn(application), newVersion);
    EXPECT_EQ(start()->verdict(), Verdict::Ordinary);
}

TEST_F(TrialRunTest, EveryStateAProcessMayLeaveIsBroughtInOrder)
{
    struct Row {
        const char* name;
        int starts;
        const char* installed;
        const char* beside;
        const char* remains;
    };
    // The verdict on what is not on trial is always Ordinary, and what lies in the application's folder stays there.
    const std::vector<Row> rows{
        {"helper killed before the exchange", 0, "1.4.2", "1.5.0", ""},
        {"the same, while what was staged was removed", 0, "1.4.2", nullptr, ""},
        {"killed after bringing the old one back", 2, "1.4.2", "1.5.0", " result"},
        {"killed after removing the one that died", 2, "1.4.2", nullptr, " result"},
        {"another release was put there by hand", 1, "1.6.0", "1.4.2", ""},
    };
    for (const Row& row : rows) {
        QDir(application).removeRecursively();
        QDir(staged).removeRecursively();
        QDir(working).removeRecursively();
        ASSERT_TRUE(QDir().mkpath(working));
        makeRelease(application, QLatin1String(row.installed), 312);
        if (row.beside != nullptr)
            makeRelease(staged, QLatin1String(row.beside), 320);
        writeTrial(row.starts);
        EXPECT_EQ(start()->verdict(), Verdict::Ordinary) << row.name;
        EXPECT_EQ(versionIn(application), QLatin1String(row.installed)) << row.name;
        EXPECT_EQ(remains(), QLatin1String(row.remains)) << row.name;
    }
}

TEST_F(TrialRunTest, WhoeverElseIsAtItIsLeftAlone)
{
    {
        const auto helper = InstallLock::take(working, InstallLock::Work::Trial);
        ASSERT_TRUE(helper);
        const auto run = start();
        EXPECT_EQ(run->verdict(), Verdict::Ordinary);
        run->confirm();
        run->endedWell();
        EXPECT_FALSE(run->revert());
        EXPECT_EQ(starts(), 0);
    }
    const auto first = start();
    EXPECT_EQ(start()->verdict(), Verdict::Ordinary) << "a second instance beside it";
    EXPECT_EQ(starts(), 1);
    first->endedWell();

    // The old one, which ran on while the folders were exchanged, and a copy elsewhere.
    const QString copy = home + QStringLiteral("/copy");
    makeRelease(copy, newVersion, 320);
    const ApplicationFolder before{.path = application, .version = oldVersion, .build = 312};
    for (const auto& running : {std::optional(before), ApplicationFolder::read(staged), ApplicationFolder::read(copy),
                                std::optional<ApplicationFolder>()})
        EXPECT_EQ(TrialRun(working, running).verdict(), Verdict::Ordinary);
    EXPECT_EQ(remains(), oldVersion + QStringLiteral(" trial"));

    ASSERT_TRUE(QDir(application).removeRecursively());
    EXPECT_EQ(TrialRun(working, ApplicationFolder::read(staged)).verdict(), Verdict::Ordinary);
    EXPECT_EQ(versionIn(staged), oldVersion) << "the only one that is left";
    EXPECT_EQ(TrialRun(working, ApplicationFolder::read(copy)).verdict(), Verdict::Ordinary);
    EXPECT_EQ(remains(), QString()) << "of an application that was moved away";
}

TEST_F(TrialRunTest, WhereNothingCanBeBroughtBackTheNewOneGoesOn)
{
    const QString aside = home + QStringLiteral("/aside");
    for (const char* const missing : {"/release.json", "/bin/loomstreet", ""}) {
        makeRelease(staged, oldVersion, 312);
        ASSERT_TRUE(QFile::rename(staged + QLatin1String(missing), aside));
        if (*missing == '\0')
            ASSERT_TRUE(QFile::link(aside, staged));
        writeTrial(2);
        const auto run = start();
        EXPECT_EQ(run->verdict(), Verdict::Revert) << missing;
        EXPECT_FALSE(run->revert()) << missing;
        EXPECT_EQ(versionIn(application), newVersion) << missing;
        run->confirm();
        EXPECT_EQ(starts(), -1) << missing;
        QFile::remove(aside);
    }
}

TEST_F(TrialRunTest, ATrialFileThatCannotBeReadChangesNothing)
{
    writeFile(working + QLatin1Char('/') + QLatin1String(InstallTrial::fileName), "{\"version\":\"1.5");
    EXPECT_EQ(start()->verdict(), Verdict::Ordinary);
    EXPECT_EQ(versionIn(staged), oldVersion);
    EXPECT_EQ(versionIn(application), newVersion);
}

TEST_F(TrialRunTest, AKilledProcessGivesItsLockUp)
{
    std::array<int, 2> pipe{};
    ASSERT_EQ(::pipe(pipe.data()), 0);
    const pid_t child = ::fork();
    ASSERT_GE(child, 0);
    if (child == 0) {
        const TrialRun run(working, ApplicationFolder::read(application));
        const char verdict = run.verdict() == Verdict::OnTrial ? 'y' : 'n';
        if (::write(pipe[1], &verdict, 1) == 1)
            ::pause();
        ::_exit(1);
    }
    ::close(pipe[1]);
    char verdict = 0;
    EXPECT_EQ(::read(pipe[0], &verdict, 1), 1);
    ::close(pipe[0]);
    EXPECT_EQ(verdict, 'y');
    EXPECT_FALSE(InstallLock::take(working, InstallLock::Work::Trial));
    EXPECT_TRUE(InstallLock::take(working, InstallLock::Work::Helping)) << "a helper may start beside it";
    ASSERT_EQ(::kill(child, SIGKILL), 0);
    ASSERT_EQ(::waitpid(child, nullptr, 0), child);
    EXPECT_TRUE(InstallLock::take(working, InstallLock::Work::Trial));
    EXPECT_EQ(starts(), 1) << "and has died";
}
