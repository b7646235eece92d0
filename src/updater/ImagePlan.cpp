#include "updater/ImagePlan.h"

#include <sqfs/error.h>

#include <climits>

namespace loom
{

namespace
{

using Code = InstallResult::Code;

/// What the smallest thing takes of a disk, and what the size of each is rounded up to.
constexpr qint64 diskBlock = 4096;

bool isPlainName(const QByteArray& name)
{
    return !name.isEmpty() && name.size() <= NAME_MAX && name != "." && name != ".." && !name.contains('/') &&
           !name.contains('\0');
}

/// The text a link holds: the size on the disk counts, not where a zero byte stands.
QByteArray targetOf(const sqfs_inode_generic_t& link)
{
    const quint32 size =
        link.base.type == SQFS_INODE_SLINK ? link.data.slink.target_size : link.data.slink_ext.target_size;
    if (size >= PATH_MAX)
        return {};
    return {reinterpret_cast<const char*>(link.extra), static_cast<qsizetype>(size)};
}

class Planner
{
public:
    Planner(SquashfsImage& image, const UnpackLimits& limits, ImagePlan& plan)
        : m_image(image)
        , m_limits(limits)
        , m_plan(plan)
    {
    }

    /// Judges what `entry` is. The folder that it lies in is `depth` folders below the root; the root lies in none.
    [[nodiscard]] Result<void, Code> judge(PlannedEntry& entry, int depth)
    {
        if (++m_plan.entries > m_limits.entries)
            return Unexpected(Code::BadImage);
        switch (entry.inode->base.type) {
        case SQFS_INODE_DIR:
        case SQFS_INODE_EXT_DIR:
            entry.kind = PlannedEntry::Kind::Folder;
            return charge(0) ? judgeChildren(entry, depth + 1) : Unexpected(Code::BadImage);
        case SQFS_INODE_FILE:
        case SQFS_INODE_EXT_FILE: {
            entry.kind = PlannedEntry::Kind::File;
            entry.isExecutable = (entry.inode->base.mode & SQFS_INODE_OWNER_X) != 0;
            sqfs_u64 size = 0;
            if (sqfs_inode_get_file_size(entry.inode.get(), &size) != 0 || !charge(size))
                return Unexpected(Code::BadImage);
            return {};
        }
        case SQFS_INODE_SLINK:
        case SQFS_INODE_EXT_SLINK:
            entry.kind = PlannedEntry::Kind::Link;
            entry.target = targetOf(*entry.inode);
            if (!charge(0) || !staysInside(entry.target, depth))
                return Unexpected(Code::BadImage);
            return {};
        default:
            return Unexpected(Code::BadImage);
        }
    }

private:
    [[nodiscard]] Result<void, Code> judgeChildren(PlannedEntry& folder, int depth)
    {
        if (depth >= m_limits.depth)
            return Unexpected(Code::BadImage);
        LOOM_TRY(entries, m_image.entries(*folder.inode, m_limits.entries - m_plan.entries));
        folder.children.reserve(entries.size());
        for (SquashfsImage::Entry& found : entries) {
            if (!isPlainName(found.name))
                return Unexpected(Code::BadImage);
            PlannedEntry& entry = folder.children.emplace_back();
            entry.name = std::move(found.name);
            entry.inode = std::move(found.inode);
            if (auto judged = judge(entry, depth); !judged)
                return judged;
        }
        return {};
    }

    /// Whether there may be so much more.
    [[nodiscard]] bool charge(sqfs_u64 size)
    {
        if (size > static_cast<sqfs_u64>(m_limits.bytes))
            return false;
        m_plan.bytes += (static_cast<qint64>(size) + diskBlock - 1) / diskBlock * diskBlock + diskBlock;
        return m_plan.bytes <= m_limits.bytes;
    }

    SquashfsImage& m_image;
    const UnpackLimits& m_limits;
    ImagePlan& m_plan;
};

} // namespace

bool staysInside(const QByteArray& target, int depth)
{
    if (target.isEmpty() || target.startsWith('/') || target.contains('\0'))
        return false;
    bool climbs = true;
    for (const QByteArray& part : target.split('/')) {
        if (part == "..") {
            // After a name it would climb from wherever that name, perhaps a link, leads to.
            if (!climbs || --depth < 0)
                return false;
        } else if (!part.isEmpty() && part != ".") {
            climbs = false;
        }
    }
    return true;
}

Result<ImagePlan, Code> planOf(SquashfsImage& image, const UnpackLimits& limits)
{
    ImagePlan plan;
    LOOM_TRY(root, image.root());
    plan.root.inode = std::move(root);
    Planner planner(image, limits, plan);
    if (auto judged = planner.judge(plan.root, -1); !judged)
        return Unexpected(judged.error());
    if (plan.root.kind != PlannedEntry::Kind::Folder)
        return Unexpected(Code::BadImage);
    return plan;
}

} // namespace loom
