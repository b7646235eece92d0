#include "updater/Helper.h"

#include "release/InstallLock.h"
#include "updater/Releases.h"

#include <QFile>
#include <QProcess>

#include <fcntl.h>
#include <poll.h>
#include <sys/stat.h>
#include <unistd.h>

using namespace loom;

namespace
{

/// The helper as the program it is.
class HelperTest : public ReleasesTest
{
protected:
    HelperTest()
    {
        const QByteArray name = QFile::encodeName(path(QStringLiteral("pipe")));
        EXPECT_EQ(mkfifo(name.constData(), 0600), 0);
        // Open for writing as well, so that there is always somebody at the other end.
        pipe = open(name.constData(), O_RDWR | O_CLOEXEC);
    }
    ~HelperTest() override { close(pipe); }

    static void start(QProcess& helper, const QStringList& arguments)
    {
        helper.setProcessChannelMode(QProcess::SeparateChannels);
        helper.start(QStringLiteral(LOOM_UPDATER), arguments);
    }
    static int endOf(QProcess& helper)
    {
        EXPECT_TRUE(helper.waitForFinished());
        EXPECT_EQ(helper.exitStatus(), QProcess::NormalExit);
        EXPECT_EQ(helper.readAllStandardOutput(), QByteArray());
        return helper.exitCode();
    }
    static int run(const QStringList& arguments)
    {
        QProcess helper;
        start(helper, arguments);
        return endOf(helper);
    }
    /// What the application says when it is started, once it is.
    [[nodiscard]] QByteArray started() const
    {
        pollfd event{.fd = pipe, .events = POLLIN, .revents = 0};
        if (poll(&event, 1, 20'000) != 1)
            return {};
        QByteArray line(100, '\0');
        line.resize(std::max<qsizetype>(0, read(pipe, line.data(), 100)));
        return line;
    }

    int pipe = -1;
};

TEST_F(HelperTest, TheApplicationIsStartedAgainTheNewOneOrTheOld)
{
    InstallJob job = jobFor(QStringLiteral("2.0"));
    job.relaunch = true;
    ASSERT_TRUE(write(job, working));
    {
        const auto lock = InstallLock::take(working, InstallLock::Work::Trial);
        EXPECT_EQ(run({working}), 0);
        EXPECT_EQ(started(), "started 1.0\n") << "busy, though it does not run";
        EXPECT_EQ(readInstallResult(working)->code, InstallResult::Code::Busy);
    }
    EXPECT_EQ(run({working}), 0);
    EXPECT_EQ(started(), "started 2.0\n");
    EXPECT_EQ(readInstallResult(working),
              (InstallResult{.code = InstallResult::Code::Installed, .path = folder, .relaunch = true}));

    job = jobFor(QStringLiteral("3.0"));
    job.relaunch = true;
    job.build = 9;
    ASSERT_TRUE(write(job, working));
    EXPECT_EQ(run({working}), 0);
    EXPECT_EQ(started(), "started 2.0\n");
    EXPECT_EQ(readInstallResult(working)->code, InstallResult::Code::BadImage);
}

TEST_F(HelperTest, WithoutAJobOfItsOwnNothingIsTouched)
{
    const QString file = working + QLatin1Char('/') + QLatin1String(InstallJob::fileName);
    ASSERT_TRUE(write(jobFor(QStringLiteral("2.0")), working));
    const QByteArray whole = contentOf(file);
    const auto untouched = [&](const char* what) {
        const auto before = treeOf(home.path());
        EXPECT_EQ(run({working}), static_cast<int>(HelperEnd::NothingToDo)) << what;
        EXPECT_EQ(treeOf(home.path()), before) << what;
    };
    QFile::remove(file);
    untouched("missing");
    put(file, whole.left(whole.size() / 2), 0600);
    untouched("truncated");
    put(file, "{}", 0600);
    untouched("foreign");
    put(file, whole, 0666);
    untouched("anybody's");
    put(path(QStringLiteral("elsewhere")), whole, 0600);
    QFile::remove(file);
    QFile::link(path(QStringLiteral("elsewhere")), file);
    untouched("a link");
    for (const QStringList& arguments :
         {QStringList{}, QStringList{QStringLiteral("updates")}, QStringList{working, working}})
        EXPECT_EQ(run(arguments), static_cast<int>(HelperEnd::Usage));
    EXPECT_EQ(run({path(QStringLiteral("missing"))}), static_cast<int>(HelperEnd::NothingToDo));
    expectUntouched();
}

TEST_F(HelperTest, OfTwoHelpersOneDoesTheWork)
{
    QProcess application;
    application.start(QStringLiteral("/bin/cat"), QStringList());
    ASSERT_TRUE(application.waitForStarted());
    InstallJob job = jobFor(QStringLiteral("2.0"));
    job.processIdentifier = application.processId();
    ASSERT_TRUE(write(job, working));
    QProcess first;
    QProcess second;
    start(first, {working});
    start(second, {working});
    // Whichever came late ends at once, while the other waits for the application.
    while (first.state() != QProcess::NotRunning && second.state() != QProcess::NotRunning) {
        if (!first.waitForFinished(50))
            (void)second.waitForFinished(50);
    }
    QProcess& late = first.state() == QProcess::NotRunning ? first : second;
    EXPECT_EQ(late.exitCode(), static_cast<int>(HelperEnd::AnotherIsAtIt));
    expectUntouched();
    EXPECT_FALSE(readInstallResult(working));
    application.closeWriteChannel();
    application.waitForFinished();
    EXPECT_EQ(endOf(&late == &first ? second : first), 0);
    EXPECT_EQ(treeOf(folder), treeOf(path(QStringLiteral("tree"))));
}

TEST_F(HelperTest, ItLoadsNoMoreOfQtThanItsCore)
{
    QProcess loader;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("LD_TRACE_LOADED_OBJECTS"), QStringLiteral("1"));
    loader.setProcessEnvironment(environment);
    loader.start(QStringLiteral(LOOM_UPDATER), QStringList());
    ASSERT_TRUE(loader.waitForFinished());
    const QByteArray libraries = loader.readAllStandardOutput();
    EXPECT_TRUE(libraries.contains("libQt6Core.so"));
    EXPECT_EQ(libraries.count("libQt6"), libraries.count("libQt6Core.so")) << libraries.toStdString();
}

} // namespace
