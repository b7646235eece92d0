#include "release/ApplicationFolder.h"
#include "updater/Helper.h"
#include "updater/Releases.h"

#include <QDir>
#include <QFile>

#include <csignal>
#include <fcntl.h>
#include <sys/ptrace.h>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <unistd.h>

using namespace loom;

namespace
{

/// Whether a call of the kernel may change what lies on the disk.
bool changesDisk(const __ptrace_syscall_info& call)
{
    const auto& arguments = call.entry.args;
    switch (call.entry.nr) {
    case SYS_openat:
        return (arguments[2] & O_CREAT) != 0;
    case SYS_write:
        return arguments[0] > STDERR_FILENO;
    case SYS_mkdirat:
    case SYS_symlinkat:
    case SYS_linkat:
    case SYS_unlinkat:
    case SYS_renameat:
    case SYS_renameat2:
    case SYS_fchmod:
    case SYS_fchmodat:
    case SYS_ftruncate:
    case SYS_fsync:
    case SYS_fdatasync:
    case SYS_syncfs:
#ifdef SYS_mkdir // the older calls, which younger machines do not have
    case SYS_mkdir:
    case SYS_symlink:
    case SYS_link:
    case SYS_unlink:
    case SYS_rmdir:
    case SYS_rename:
    case SYS_chmod:
#endif
        return true;
    default:
        return false;
    }
}

enum class Ran { Killed, ToItsEnd, Untraced };

/// Runs the helper and kills it as it begins its `count`th change of the disk.
Ran runAndKill(const QString& working, int count)
{
    const QByteArray folder = QFile::encodeName(working);
    const pid_t helper = fork();
    if (helper == 0) {
        if (ptrace(PTRACE_TRACEME, 0, nullptr, nullptr) != 0)
            _exit(126);
        // The search for leaks does not work while somebody watches.
        setenv("ASAN_OPTIONS", "detect_leaks=0", 1);
        execl(LOOM_UPDATER, LOOM_UPDATER, folder.constData(), nullptr);
        _exit(127);
    }
    int status = 0;
    waitpid(helper, &status, 0);
    if (!WIFSTOPPED(status)) {
        EXPECT_EQ(WEXITSTATUS(status), 126) << "no helper: " << status;
        return Ran::Untraced;
    }
    ptrace(PTRACE_SETOPTIONS, helper, nullptr, PTRACE_O_TRACESYSGOOD | PTRACE_O_EXITKILL);
    long signal = 0;
    while (ptrace(PTRACE_SYSCALL, helper, nullptr, signal) == 0 && waitpid(helper, &status, 0) == helper) {
        if (!WIFSTOPPED(status))
            break;
        const bool isCall = WSTOPSIG(status) == (SIGTRAP | 0x80);
        signal = isCall ? 0 : WSTOPSIG(status);
        __ptrace_syscall_info call{};
        if (!isCall || ptrace(PTRACE_GET_SYSCALL_INFO, helper, sizeof call, &call) <= 0 ||
            call.op != PTRACE_SYSCALL_INFO_ENTRY || !changesDisk(call) || --count > 0)
            continue;
        kill(helper, SIGKILL);
        waitpid(helper, &status, 0);
        return Ran::Killed;
    }
    EXPECT_TRUE(WIFEXITED(status) && WEXITSTATUS(status) == 0) << status;
    return Ran::ToItsEnd;
}

using KilledHelperTest = ReleasesTest;

TEST_F(KilledHelperTest, WheneverItIsKilledOneReleaseLiesThereWholeAndTheNextHelperFinishes)
{
    const InstallJob job = jobFor(QStringLiteral("2.0"));
    const auto newTree = treeOf(path(QStringLiteral("tree")));
    int replaced = 0;
    int kills = 0;
    for (Ran ran = Ran::Killed; ran == Ran::Killed; ++kills) {
        SCOPED_TRACE(kills);
        QDir(path(QStringLiteral("apps"))).removeRecursively();
        for (const QString& file : QDir(working).entryList({QStringLiteral("install-*.json")}, QDir::Files))
            QFile::remove(working + QLatin1Char('/') + file);
        makeRelease(folder, QStringLiteral("1.0"), 1);
        ASSERT_TRUE(write(job, working));

        ran = runAndKill(working, kills + 1);
        if (ran == Ran::Untraced && kills == 0)
            GTEST_SKIP() << "processes cannot be watched here";
        ASSERT_NE(ran, Ran::Untraced);
        const bool isNew = ApplicationFolder::read(folder)->version == job.version;
        replaced += isNew ? 1 : 0;
        ASSERT_EQ(treeOf(folder), isNew ? newTree : oldTree);
        if (isNew) {
            ASSERT_EQ(treeOf(readInstallTrial(working)->previous), oldTree) << "no way back";
        }
        ASSERT_EQ(help(working), HelperEnd::Done);
        ASSERT_EQ(readInstallResult(working)->code, InstallResult::Code::Installed);
        ASSERT_EQ(treeOf(folder), newTree);
        ASSERT_EQ(treeOf(readInstallTrial(working)->previous), oldTree);
        ASSERT_EQ(apps().size(), 2);
    }
    EXPECT_GT(replaced, 1);
    EXPECT_GT(kills - replaced, 30);
}

} // namespace
