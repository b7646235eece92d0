#pragma once

#include "updater/SquashfsImage.h"

namespace loom
{

/// What an image may be to be unpacked. No release of ours comes near these.
struct UnpackLimits {
    qint64 entries = 100'000;
    qint64 bytes = 4LL * 1024 * 1024 * 1024; ///< on the disk, once unpacked
    int depth = 32;                          ///< folders within folders
    qint64 spare = 64LL * 1024 * 1024;       ///< what the disk must have left afterwards
};

/// What is to be unpacked, judged: it can be written as it stands, and nothing of it leads out of the folder it is
/// written to.
struct PlannedEntry {
    enum class Kind { Folder, File, Link };

    QByteArray name;
    Kind kind = Kind::Folder;
    bool isExecutable = false; ///< of a file
    QByteArray target;         ///< of a link
    SquashfsImage::Inode inode;
    std::vector<PlannedEntry> children; ///< of a folder
};

struct ImagePlan {
    PlannedEntry root;
    qint64 entries = 0;
    qint64 bytes = 0; ///< on the disk, rounded up
};

/// Reads all of an image but the content of its files. Only folders, files and links are let through, with names that
/// are names of one thing and links that stay inside.
[[nodiscard]] Result<ImagePlan, InstallResult::Code> planOf(SquashfsImage& image, const UnpackLimits& limits);

/// Whether a link in a folder `depth` folders below the root stays inside, whatever other such links it passes: it
/// climbs only at its beginning, and no further than to the root.
[[nodiscard]] bool staysInside(const QByteArray& target, int depth);

} // namespace loom
