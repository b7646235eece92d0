#pragma once

#include <QString>

#include <optional>

namespace loom
{

/// Acts on a link wherever one turns up. Main thread.
class LinkOpener
{
public:
    LinkOpener() = default;
    LinkOpener(const LinkOpener&) = delete;
    LinkOpener& operator=(const LinkOpener&) = delete;
    virtual ~LinkOpener() = default;

    /// False when the link means nothing.
    virtual bool open(const std::optional<QString>& link) = 0;
};

} // namespace loom
