#include "services/LastWords.h"

#include <gtest/gtest.h>

#include <QFile>
#include <QTemporaryDir>

#include <csignal>
#include <exception>
#include <fcntl.h>
#include <functional>
#include <stdexcept>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

using namespace loom;

namespace
{

class Refused final : public std::runtime_error
{
public:
    using std::runtime_error::runtime_error;
};

/// Stops what is thrown from being caught anywhere else than where uncaught exceptions are.
[[noreturn]] void let(const std::function<void()>& escape) noexcept
{
    escape();
    std::abort();
}

class LastWordsTest : public testing::Test
{
protected:
    /// What is found after another process ended in this way.
    [[nodiscard]] LastRun after(const std::function<void()>& dying) const
    {
        const pid_t child = fork();
        if (child == 0) {
            dup2(open("/dev/null", O_WRONLY), STDERR_FILENO);
            LastWords words(home.path());
            static_cast<void>(words.begin(began));
            words.listen();
            dying();
            _exit(0);
        }
        int status = 0;
        waitpid(child, &status, 0);
        EXPECT_FALSE(WIFEXITED(status) && WEXITSTATUS(status) == 0) << "it ends as if nothing had happened";
        return LastWords(home.path()).begin(began.addSecs(3600));
    }

    QTemporaryDir home;
    const QDateTime began{QDate(2025, 3, 9), QTime(8, 0), Qt::UTC};
};

TEST_F(LastWordsTest, AProcessSaysWhyItEnds)
{
    struct Row {
        const char* words;
        std::function<void()> dying;
    };
    for (const Row& row : {
             Row{"uncaught exception (anonymous namespace)::Refused: no silk",
                 [] {
                     let([] { throw Refused("no silk"); });
                 }},
             Row{"uncaught exception int",
                 [] {
                     let([] { throw 7; });
                 }},
             Row{"the scene graph is gone",
                 [] {
                     qFatal("%s", "the scene graph is gone");
                 }},
             Row{"ended by std::terminate",
                 [] {
                     std::terminate();
                 }},
             Row{"ended by SIGABRT",
                 [] {
                     std::abort();
                 }},
             Row{"ended by SIGBUS",
                 [] {
                     raise(SIGBUS);
                 }},
             Row{"ended by SIGSEGV",
                 [] {
                     kill(getpid(), SIGSEGV);
                 }},
         }) {
        const LastRun last = after(row.dying);
        EXPECT_EQ(last.words, QString::fromUtf8(row.words));
        EXPECT_LT(qAbs(last.aliveLast.secsTo(QDateTime::currentDateTimeUtc())), 60) << row.words;
    }
}

TEST_F(LastWordsTest, ALongTextEndsWithAWholeWord)
{
    const std::string what = std::string(LastWords::maximumBytes - 100, 'a') + " " + std::string(200'000, 'b');
    const LastRun last = after([&what] { let([&what] { throw std::runtime_error(what); }); });
    EXPECT_TRUE(last.words.trimmed().endsWith(QLatin1Char('a')));
    EXPECT_EQ(last.words.count(QLatin1Char('a')) - 1, qsizetype(LastWords::maximumBytes) - 100);
}

TEST_F(LastWordsTest, AKilledRunLeavesWhenItWasAliveLastAndAnEndedOneNothing)
{
    {
        LastWords words(home.path());
        const LastRun before = words.begin(began);
        EXPECT_FALSE(before.aliveLast.isValid());
        words.touch(began.addSecs(90));
    }
    struct stat facts{};
    ASSERT_EQ(stat(QFile::encodeName(home.filePath(QStringLiteral("lst_last_words"))).constData(), &facts), 0);
    EXPECT_EQ(facts.st_mode & 0777U, 0600U);
    LastWords words(home.path());
    const LastRun last = words.begin(began.addSecs(300));
    EXPECT_EQ(last.words, QString());
    EXPECT_EQ(last.aliveLast, began.addSecs(90));
    words.end();
    EXPECT_FALSE(QFile::exists(home.filePath(QStringLiteral("lst_last_words"))));
}

TEST_F(LastWordsTest, AProcessThatWasSplitOffLeavesNoWords)
{
    LastWords words(home.path());
    static_cast<void>(words.begin(began));
    words.listen();
    const pid_t child = fork();
    if (child == 0) {
        dup2(open("/dev/null", O_WRONLY), STDERR_FILENO);
        raise(SIGBUS);
        _exit(0);
    }
    int status = 0;
    waitpid(child, &status, 0);
    QFile file(home.filePath(QStringLiteral("lst_last_words")));
    EXPECT_EQ(file.size(), 0);
}

TEST_F(LastWordsTest, WhatIsNoFileIsLeftAlone)
{
    const QString place = home.filePath(QStringLiteral("lst_last_words"));
    for (const auto& put : std::initializer_list<std::function<void()>>{
             [&] { ASSERT_EQ(mkfifo(QFile::encodeName(place).constData(), 0600), 0); },
             [&] { ASSERT_TRUE(QFile::link(home.filePath(QStringLiteral("elsewhere")), place)); },
         }) {
        put();
        LastWords words(home.path());
        EXPECT_EQ(words.begin(began).words, QString());
        words.listen();
        words.touch(began);
        EXPECT_FALSE(QFile::exists(home.filePath(QStringLiteral("elsewhere"))));
        QFile::remove(place);
    }
}

} // namespace
