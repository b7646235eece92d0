#include "updater/SquashfsImage.h"

#include <sqfs/compressor.h>
#include <sqfs/data_reader.h>
#include <sqfs/dir.h>
#include <sqfs/error.h>
#include <sqfs/io.h>

#include <algorithm>
#include <string>

namespace loom
{

namespace
{

using Code = InstallResult::Code;

/// libsquashfs walks the list of a file's blocks anew for each of them: small blocks would make that very long.
constexpr sqfs_u32 minimumBlockSize = 64 * 1024;

/// A disk that cannot be read is no fault of the image; everything else is.
Unexpected<Code> failure(int error)
{
    return Unexpected(error == SQFS_ERROR_IO ? Code::Failed : Code::BadImage);
}

/// Blocks of data as libsquashfs allocates them.
using Bytes = std::unique_ptr<sqfs_u8, SquashfsImage::Free>;

} // namespace

void SquashfsImage::Free::operator()(void* memory) const
{
    sqfs_free(memory);
}

void SquashfsImage::Destroy::operator()(void* object) const
{
    sqfs_destroy(object);
}

Result<SquashfsImage, Code> SquashfsImage::open(int descriptor, qint64 maximumInodes)
{
    SquashfsImage image;
    // The very file that is open, whatever lies at its path by now.
    const std::string path = "/proc/self/fd/" + std::to_string(descriptor);
    image.m_file.reset(sqfs_open_file(path.c_str(), SQFS_FILE_OPEN_READ_ONLY));
    if (!image.m_file)
        return Unexpected(Code::Failed);

    image.m_super = std::make_unique<sqfs_super_t>();
    sqfs_super_t& super = *image.m_super;
    if (const int error = sqfs_super_read(&super, image.m_file.get()))
        return failure(error);
    // Fragments are ends of files: there cannot be more of them than inodes.
    if (super.compression_id != SQFS_COMP_ZSTD || super.block_size < minimumBlockSize ||
        super.inode_count > maximumInodes || super.fragment_entry_count > super.inode_count)
        return Unexpected(Code::BadImage);

    sqfs_compressor_config_t configuration{};
    sqfs_compressor_t* compressor = nullptr;
    int error =
        sqfs_compressor_config_init(&configuration, SQFS_COMP_ZSTD, super.block_size, SQFS_COMP_FLAG_UNCOMPRESS);
    if (error == 0)
        error = sqfs_compressor_create(&configuration, &compressor);
    if (error != 0)
        return Unexpected(Code::Failed);
    image.m_compressor.reset(compressor);

    image.m_folders.reset(sqfs_dir_reader_create(&super, compressor, image.m_file.get(), 0));
    image.m_data.reset(sqfs_data_reader_create(image.m_file.get(), super.block_size, compressor, 0));
    if (!image.m_folders || !image.m_data)
        return Unexpected(Code::Failed);
    error = sqfs_data_reader_load_fragment_table(image.m_data.get(), &super);
    if (error != 0)
        return failure(error);
    return image;
}

Result<SquashfsImage::Inode, Code> SquashfsImage::root()
{
    sqfs_inode_generic_t* inode = nullptr;
    if (const int error = sqfs_dir_reader_get_root_inode(m_folders.get(), &inode))
        return failure(error);
    return Inode(inode);
}

Result<std::vector<SquashfsImage::Entry>, Code> SquashfsImage::entries(const sqfs_inode_generic_t& folder,
                                                                       qint64 maximum)
{
    if (const int error = sqfs_dir_reader_open_dir(m_folders.get(), &folder, 0))
        return failure(error);
    std::vector<Entry> result;
    while (true) {
        sqfs_dir_entry_t* read = nullptr;
        const int state = sqfs_dir_reader_read(m_folders.get(), &read);
        if (state > 0)
            return result;
        if (state < 0)
            return failure(state);
        const std::unique_ptr<sqfs_dir_entry_t, Free> entry(read);
        if (std::ssize(result) >= maximum)
            return Unexpected(Code::BadImage);
        sqfs_inode_generic_t* inode = nullptr;
        if (const int error = sqfs_dir_reader_get_inode(m_folders.get(), &inode))
            return failure(error);
        // The size on the disk is one less than that of the name.
        result.push_back(
            {.name = QByteArray(reinterpret_cast<const char*>(entry->name), entry->size + 1), .inode = Inode(inode)});
    }
}

Result<void, Code> SquashfsImage::read(const sqfs_inode_generic_t& file, const Sink& sink)
{
    sqfs_u64 left = 0;
    if (const int error = sqfs_inode_get_file_size(&file, &left))
        return failure(error);
    const auto pass = [&](const sqfs_u8* bytes, std::size_t size, sqfs_u64 expected) -> Result<void, Code> {
        // A block that unpacks to less than it stands for would move everything behind it.
        if (size != expected)
            return Unexpected(Code::BadImage);
        left -= size;
        return sink({bytes, size});
    };
    const std::size_t blocks = sqfs_inode_get_file_block_count(&file);
    for (std::size_t index = 0; index < blocks; ++index) {
        sqfs_u8* data = nullptr;
        std::size_t size = 0;
        const int error = sqfs_data_reader_get_block(m_data.get(), &file, index, &size, &data);
        const Bytes block(data);
        if (error != 0)
            return failure(error);
        if (auto passed = pass(data, size, std::min<sqfs_u64>(left, m_super->block_size)); !passed)
            return passed;
    }
    if (left == 0)
        return {};
    sqfs_u32 index = 0;
    sqfs_u32 offset = 0;
    if (const int error = sqfs_inode_get_frag_location(&file, &index, &offset))
        return failure(error);
    // libsquashfs adds the two up in 32 bits.
    if (offset > m_super->block_size || left > m_super->block_size - offset)
        return Unexpected(Code::BadImage);
    sqfs_u8* data = nullptr;
    std::size_t size = 0;
    const int error = sqfs_data_reader_get_fragment(m_data.get(), &file, &size, &data);
    const Bytes end(data);
    if (error != 0)
        return failure(error);
    return pass(data, size, left);
}

} // namespace loom
