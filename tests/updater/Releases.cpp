#include "updater/Releases.h"

#include <QCryptographicHash>
#include <QDateTime>
#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QProcess>

#include <filesystem>
#include <sys/stat.h>
#include <sys/statvfs.h>
#include <sys/wait.h>
#include <unistd.h>

namespace loom
{

namespace
{

/// In memory where that is possible: the disk of a busy machine takes its time to have everything written.
QString homeTemplate()
{
    struct statvfs disk{};
    const bool suits = access("/dev/shm", W_OK) == 0 && statvfs("/dev/shm", &disk) == 0 &&
                       (disk.f_flag & ST_NOEXEC) == 0 && disk.f_bavail * disk.f_frsize > 256UL * 1024 * 1024;
    return (suits ? QStringLiteral("/dev/shm") : QDir::tempPath()) + QStringLiteral("/loom-updater-XXXXXX");
}

} // namespace

void put(const QString& path, const QByteArray& content, mode_t mode)
{
    QDir().mkpath(QFileInfo(path).path());
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly | QIODevice::Truncate)) << path.toStdString();
    ASSERT_EQ(file.write(content), content.size());
    file.close();
    ASSERT_EQ(chmod(QFile::encodeName(path).constData(), mode), 0);
}

QByteArray contentOf(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

QMap<QString, QByteArray> treeOf(const QString& folder)
{
    QMap<QString, QByteArray> tree;
    QDirIterator entries(folder, QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot,
                         QDirIterator::Subdirectories);
    while (entries.hasNext()) {
        entries.next();
        const QString name = entries.filePath().mid(folder.size() + 1);
        if (entries.fileInfo().isSymLink())
            tree.insert(name, std::filesystem::read_symlink(entries.filePath().toStdString()).c_str());
        else if (entries.fileInfo().isDir())
            tree.insert(name + QLatin1Char('/'), {});
        else
            tree.insert(name, entries.fileInfo().isFile() ? contentOf(entries.filePath()) : QByteArray("special"));
    }
    return tree;
}

void makeImage(const QString& folder, const QString& image, const QStringList& arguments)
{
    QFile::remove(image);
    QStringList all{folder, image, QStringLiteral("-quiet"), QStringLiteral("-no-progress"), QStringLiteral("-nopad")};
    for (const char* const fixed : {"-processors", "1", "-mkfs-time", "0", "-all-time", "0", "-all-root"})
        all.append(QString::fromLatin1(fixed));
    if (!arguments.contains(QStringLiteral("-comp")))
        all.append({QStringLiteral("-comp"), QStringLiteral("zstd")});
    QProcess process;
    process.setProcessChannelMode(QProcess::MergedChannels);
    process.start(QStringLiteral(LOOM_MKSQUASHFS), all + arguments);
    ASSERT_TRUE(process.waitForFinished());
    ASSERT_EQ(process.exitCode(), 0) << process.readAll().toStdString();
}

pid_t endedProcess()
{
    const pid_t process = fork();
    if (process == 0)
        _exit(0);
    waitpid(process, nullptr, 0);
    return process;
}

ReleasesTest::ReleasesTest()
    : home(homeTemplate())
{
    QDir().mkpath(working);
    makeRelease(folder, QStringLiteral("1.0"), 1);
    oldTree = treeOf(folder);
}

QStringList ReleasesTest::apps() const
{
    return QDir(path(QStringLiteral("apps"))).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot);
}

void ReleasesTest::makeRelease(const QString& where, const QString& version, int build, const QByteArray& answer) const
{
    const QByteArray name = version.toUtf8();
    put(where + QStringLiteral("/release.json"),
        "{\"version\":\"" + name + "\",\"build\":" + QByteArray::number(build) + '}');
    put(where + QStringLiteral("/bin/loomstreet"),
        "#!/bin/sh\nif [ \"$1\" = --version ]; then\n" +
            (answer.isEmpty() ? "echo LOOMSTREET " + name + "\nexit" : answer) + "\nfi\necho started " + name + " >" +
            QFile::encodeName(path(QStringLiteral("pipe"))) + '\n',
        0755);
    put(where + QStringLiteral("/libexec/loomstreet-updater"), "helper of " + name, 0755);
    put(where + QStringLiteral("/qml/Page.qml"), QByteArray(20000, name.at(0)));
    QFile::link(QStringLiteral("Page.qml"), where + QStringLiteral("/qml/Link.qml"));
}

InstallJob ReleasesTest::jobFor(const QString& version, int build, const QByteArray& answer)
{
    const QString tree = path(QStringLiteral("tree"));
    QDir(tree).removeRecursively();
    makeRelease(tree, version, build, answer);
    const QString image = working + QStringLiteral("/image.squashfs");
    makeImage(tree, image);
    InstallJob job = jobWith(image, version, build);
    EXPECT_TRUE(write(job, working));
    return job;
}

InstallJob ReleasesTest::jobWith(const QString& image, const QString& version, int build) const
{
    return {.version = version,
            .build = build,
            .relaunch = false,
            .createdAt = QDateTime::fromSecsSinceEpoch(1'700'000'000, Qt::UTC),
            .processIdentifier = endedProcess(),
            .image = image,
            .sha256 =
                QString::fromLatin1(QCryptographicHash::hash(contentOf(image), QCryptographicHash::Sha256).toHex()),
            .folder = folder};
}

InstallResult::Code ReleasesTest::installed(const InstallJob& job, const InstallSettings& settings) const
{
    const InstallResult result = install(job, working, settings);
    EXPECT_EQ(result, readInstallResult(working));
    EXPECT_EQ(result.path, job.folder);
    return result.code;
}

void ReleasesTest::expectUntouched() const
{
    EXPECT_EQ(treeOf(folder), oldTree);
    EXPECT_EQ(apps(), QStringList{QStringLiteral("loomstreet")});
    EXPECT_FALSE(readInstallTrial(working));
}

} // namespace loom
