#pragma once

#include "base/Result.h"
#include "release/InstallJob.h"

#include <QByteArray>

#include <sqfs/dir_reader.h>
#include <sqfs/inode.h>
#include <sqfs/super.h>

#include <functional>
#include <memory>
#include <span>
#include <vector>

namespace loom
{

/// Reads a squashfs image (zstd) through libsquashfs. Nothing that it gives has been judged: names may be of any bytes,
/// and a folder may hold itself. One thread at a time; blocks.
class SquashfsImage
{
public:
    using Code = InstallResult::Code;

    /// Frees what libsquashfs has allocated.
    struct Free {
        void operator()(void* memory) const;
    };
    using Inode = std::unique_ptr<sqfs_inode_generic_t, Free>;
    struct Entry {
        QByteArray name;
        Inode inode;
    };
    /// Takes some bytes of a file; gives nothing, or why it takes no more.
    using Sink = std::function<Result<void, Code>(std::span<const unsigned char>)>;

    /// `descriptor` is only needed during the call. An image that says of itself that it has more inodes than
    /// `maximumInodes` is refused before anything is allocated for them.
    [[nodiscard]] static Result<SquashfsImage, Code> open(int descriptor, qint64 maximumInodes);

    [[nodiscard]] Result<Inode, Code> root();
    /// What a folder holds; a failure when that is more than `maximum`.
    [[nodiscard]] Result<std::vector<Entry>, Code> entries(const sqfs_inode_generic_t& folder, qint64 maximum);
    /// The bytes of a file, in order, exactly as many as its inode says.
    [[nodiscard]] Result<void, Code> read(const sqfs_inode_generic_t& file, const Sink& sink);

private:
    struct Destroy {
        void operator()(void* object) const;
    };
    template <typename T>
    using Object = std::unique_ptr<T, Destroy>;

    SquashfsImage() = default;

    // Each needs those above it.
    std::unique_ptr<sqfs_super_t> m_super;
    Object<sqfs_file_t> m_file;
    Object<sqfs_compressor_t> m_compressor;
    Object<sqfs_dir_reader_t> m_folders;
    Object<sqfs_data_reader_t> m_data;
};

} // namespace loom
