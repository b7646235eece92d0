#include "updater/Programs.h"

#include "updater/ProcessEnd.h"
#include "updater/Releases.h"

#include <QElapsedTimer>
#include <QProcess>

#include <cerrno>
#include <csignal>
#include <fcntl.h>
#include <poll.h>
#include <sys/stat.h>
#include <unistd.h>

using namespace loom;
using namespace std::chrono_literals;

namespace
{

class ProgramsTest : public testing::Test
{
protected:
    [[nodiscard]] QString script(const QByteArray& lines) const
    {
        put(home.path() + QStringLiteral("/program"), "#!/bin/sh\n" + lines + '\n', 0755);
        return home.path() + QStringLiteral("/program");
    }

    QTemporaryDir home;
};

TEST_F(ProgramsTest, AProgramIsAskedForItsVersionAndMustAnswerInTime)
{
    EXPECT_EQ(versionAnswer(script("echo \"$@\" $#; echo failure >&2"), 10s), QByteArray("--version 1\n"));
    EXPECT_EQ(versionAnswer(script(":"), 10s), QByteArray());
    EXPECT_EQ(versionAnswer(script("cat; echo end"), 10s), QByteArray("end\n")) << "there is nothing to read";
    EXPECT_EQ(versionAnswer(script("echo 1.0; exit 1"), 10s), std::nullopt);
    EXPECT_EQ(versionAnswer(script("echo 1.0; kill -9 $$"), 10s), std::nullopt);
    EXPECT_EQ(versionAnswer(home.path() + QStringLiteral("/missing"), 10s), std::nullopt);
    EXPECT_EQ(versionAnswer(home.path(), 10s), std::nullopt);
    EXPECT_EQ(versionAnswer(script("echo 1.0; exec yes"), 100ms), std::nullopt);
    const auto much = versionAnswer(script("head -c 300000 /dev/zero"), 10s);
    ASSERT_TRUE(much);
    EXPECT_EQ(much->size(), 4096);
}

TEST_F(ProgramsTest, WhatAHangingProgramStartedEndsWithIt)
{
    const QByteArray pipe = home.path().toLocal8Bit() + "/pipe";
    ASSERT_EQ(mkfifo(pipe.constData(), 0600), 0);
    const int reading = open(pipe.constData(), O_RDONLY | O_NONBLOCK | O_CLOEXEC);
    // One stays behind when the program ends, one while it hangs; both hold the pipe.
    EXPECT_EQ(versionAnswer(script("exec 3>" + pipe + "; sleep 600 & echo 1.0"), 10s), QByteArray("1.0\n"));
    EXPECT_EQ(versionAnswer(script("exec 3>" + pipe + "; echo up >&3; sleep 600 & wait"), 500ms), std::nullopt);
    pollfd event{.fd = reading, .events = POLLIN, .revents = 0};
    char byte = 0;
    bool holds = true;
    while (holds && poll(&event, 1, 10'000) == 1)
        holds = read(reading, &byte, 1) > 0;
    EXPECT_FALSE(holds) << "somebody still has the pipe";
    close(reading);
}

TEST_F(ProgramsTest, AProcessIsWaitedForUntilTheDeadline)
{
    EXPECT_TRUE(waitForEnd(endedProcess(), QDeadlineTimer(0)));
    QProcess process;
    process.start(QStringLiteral("/bin/cat"), QStringList());
    ASSERT_TRUE(process.waitForStarted());
    EXPECT_FALSE(waitForEnd(process.processId(), QDeadlineTimer(0)));
    EXPECT_FALSE(waitForEnd(process.processId(), QDeadlineTimer(20)));
    process.closeWriteChannel();
    EXPECT_TRUE(waitForEnd(process.processId(), QDeadlineTimer(10'000)));
    process.waitForFinished();
}

TEST_F(ProgramsTest, AnInstanceThatStillRunsIsFoundByItsProgramEvenWhenTheFolderWasRenamed)
{
    const QString program = home.path() + QStringLiteral("/a/cat");
    put(program, contentOf(QStringLiteral("/bin/cat")), 0755);
    EXPECT_TRUE(waitUntilUnused(program, QDeadlineTimer(0)));
    QProcess process;
    process.start(program, QStringList());
    ASSERT_TRUE(process.waitForStarted());
    EXPECT_FALSE(waitUntilUnused(program, QDeadlineTimer(0)));
    ASSERT_EQ(rename(qPrintable(home.path() + QStringLiteral("/a")), qPrintable(home.path() + QStringLiteral("/b"))),
              0);
    EXPECT_TRUE(waitUntilUnused(program, QDeadlineTimer(0)));
    EXPECT_FALSE(waitUntilUnused(home.path() + QStringLiteral("/b/cat"), QDeadlineTimer(0)));
    process.closeWriteChannel();
    EXPECT_TRUE(waitUntilUnused(home.path() + QStringLiteral("/b/cat"), QDeadlineTimer(10'000)));
    process.waitForFinished();
}

} // namespace
