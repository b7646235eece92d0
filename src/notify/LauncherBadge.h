#pragma once

namespace loom
{

/// The number at the application's icon. Main thread.
class LauncherBadge
{
public:
    LauncherBadge() = default;
    LauncherBadge(const LauncherBadge&) = delete;
    LauncherBadge& operator=(const LauncherBadge&) = delete;
    virtual ~LauncherBadge() = default;

    /// 0 takes the badge away. A desktop that draws the number itself also shortens it itself.
    virtual void show(int count) = 0;
};

} // namespace loom
