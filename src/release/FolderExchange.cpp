#include "release/FolderExchange.h"

#include "release/RecordFile.h"

#include <QFile>
#include <QFileInfo>

#include <cstdio>
#include <fcntl.h>
#include <filesystem>
#include <sys/stat.h>
#include <unistd.h>

namespace loom
{

namespace
{

namespace fs = std::filesystem;

/// An open folder, by the name of something in it.
class Surroundings
{
public:
    explicit Surroundings(const QString& path)
        : m_name(QFile::encodeName(QFileInfo(path).fileName()))
        , m_descriptor(
              ::open(QFile::encodeName(QFileInfo(path).path()).constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC))
    {
    }
    Surroundings(const Surroundings&) = delete;
    Surroundings& operator=(const Surroundings&) = delete;
    ~Surroundings()
    {
        if (m_descriptor >= 0)
            ::close(m_descriptor);
    }

    [[nodiscard]] bool holdFolder() const
    {
        struct stat facts = {};
        return m_descriptor >= 0 && !m_name.isEmpty() &&
               ::fstatat(m_descriptor, m_name.constData(), &facts, AT_SYMLINK_NOFOLLOW) == 0 && S_ISDIR(facts.st_mode);
    }
    [[nodiscard]] bool exchange(const Surroundings& other) const
    {
        return ::renameat2(m_descriptor, m_name.constData(), other.m_descriptor, other.m_name.constData(),
                           RENAME_EXCHANGE) == 0;
    }
    [[nodiscard]] bool sync() const { return syncFolder(m_descriptor); }

private:
    QByteArray m_name;
    int m_descriptor;
};

} // namespace

bool exchangeFolders(const QString& one, const QString& other)
{
    const Surroundings first(one);
    const Surroundings second(other);
    if (!first.holdFolder() || !second.holdFolder() || !first.exchange(second))
        return false;
    if (first.sync() && second.sync())
        return true;
    // A disk that fails: what it would show after a loss of power is not known, so everything stays as it was.
    return !first.exchange(second);
}

bool removeStaged(const QString& staged)
{
    if (!QFileInfo(staged).isAbsolute() || !QFileInfo(staged).fileName().startsWith(stagingPrefix))
        return false;
    const fs::path folder(QFile::encodeName(staged).toStdString());
    std::error_code error;
    const fs::file_status status = fs::symlink_status(folder, error);
    if (!fs::exists(status))
        return status.type() == fs::file_type::not_found;
    if (!fs::is_directory(status))
        return false;
    // First what makes it a release, so that what is left after a kill is not taken for one.
    const auto openForRemoval = [&error](const fs::path& path) {
        fs::permissions(path, fs::perms::owner_all, fs::perm_options::add, error);
    };
    openForRemoval(folder);
    if (!removeRecord(staged + QStringLiteral("/release.json")))
        return false;
    for (fs::recursive_directory_iterator entry(folder, error), end; !error && entry != end; entry.increment(error)) {
        if (fs::is_directory(entry->symlink_status(error)))
            openForRemoval(entry->path());
    }
    fs::remove_all(folder, error);
    return !error;
}

} // namespace loom
