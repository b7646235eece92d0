#include "updater/ImageUnpacker.h"

#include "updater/Descriptor.h"

#include <QFile>

#include <cerrno>
#include <fcntl.h>
#include <sys/stat.h>
#include <sys/statvfs.h>
#include <unistd.h>

namespace loom
{

namespace
{

using Code = InstallResult::Code;

Unexpected<Code> lastError()
{
    return Unexpected(codeOfError(errno));
}

Result<void, Code> checkRoom(int folder, const ImagePlan& plan, const UnpackLimits& limits)
{
    struct statvfs disk{};
    if (fstatvfs(folder, &disk) != 0)
        return Unexpected(Code::Failed);
    const auto blocks = [&](qint64 bytes) {
        return static_cast<quint64>(bytes) / disk.f_frsize + 1;
    };
    if (disk.f_frsize == 0 || blocks(plan.bytes) + blocks(limits.spare) > disk.f_bavail)
        return Unexpected(Code::NoSpace);
    // Some file systems do not count them.
    if (disk.f_files != 0 && static_cast<quint64>(plan.entries) > disk.f_favail)
        return Unexpected(Code::NoSpace);
    return {};
}

Result<void, Code> writeAll(int file, std::span<const unsigned char> bytes)
{
    while (!bytes.empty()) {
        const ssize_t written = ::write(file, bytes.data(), bytes.size());
        if (written < 0 && errno != EINTR)
            return lastError();
        if (written > 0)
            bytes = bytes.subspan(static_cast<std::size_t>(written));
    }
    return {};
}

/// Writes what was planned, each thing by its name in a folder that is held open, so that no path is ever resolved.
class PlanWriter
{
public:
    explicit PlanWriter(SquashfsImage& image)
        : m_image(image)
    {
    }

    [[nodiscard]] Result<void, Code> writeChildren(const Descriptor& folder, const PlannedEntry& planned)
    {
        for (const PlannedEntry& entry : planned.children) {
            if (auto written = write(folder.number(), entry); !written)
                return written;
        }
        return {};
    }

private:
    [[nodiscard]] Result<void, Code> write(int folder, const PlannedEntry& entry)
    {
        const char* const name = entry.name.constData();
        switch (entry.kind) {
        case PlannedEntry::Kind::Folder: {
            if (mkdirat(folder, name, 0700) != 0)
                return lastError();
            const Descriptor made(openat(folder, name, O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC));
            if (!made.isOpen() || fchmod(made.number(), 0755) != 0)
                return lastError();
            return writeChildren(made, entry);
        }
        case PlannedEntry::Kind::File: {
            const Descriptor file(openat(folder, name, O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC, 0600));
            if (!file.isOpen())
                return lastError();
            auto written = m_image.read(
                *entry.inode, [&](std::span<const unsigned char> bytes) { return writeAll(file.number(), bytes); });
            if (!written)
                return written;
            if (fchmod(file.number(), entry.isExecutable ? 0755 : 0644) != 0)
                return lastError();
            return {};
        }
        case PlannedEntry::Kind::Link:
            if (symlinkat(entry.target.constData(), folder, name) != 0)
                return lastError();
            return {};
        }
        return Unexpected(Code::Failed);
    }

    SquashfsImage& m_image;
};

} // namespace

InstallResult::Code codeOfError(int error)
{
    switch (error) {
    case ENOSPC:
    case EDQUOT:
    case EFBIG:
        return Code::NoSpace;
    case EACCES:
    case EPERM:
    case EROFS:
        return Code::NotWritable;
    // Two things of one name, and names that this file system does not take.
    case EEXIST:
    case ENAMETOOLONG:
    case EINVAL:
    case EILSEQ:
        return Code::BadImage;
    default:
        return Code::Failed;
    }
}

Result<void, InstallResult::Code> unpackImage(int descriptor, const QString& folder, const UnpackLimits& limits)
{
    const Descriptor root(
        ::open(QFile::encodeName(folder).constData(), O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC));
    if (!root.isOpen())
        return lastError();
    LOOM_TRY(image, SquashfsImage::open(descriptor, limits.entries));
    LOOM_TRY(plan, planOf(image, limits));
    if (auto enough = checkRoom(root.number(), plan, limits); !enough)
        return enough;
    return PlanWriter(image).writeChildren(root, plan.root);
}

} // namespace loom
