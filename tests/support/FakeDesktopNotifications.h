#pragma once

#include "notify/DesktopNotifications.h"
#include "notify/LauncherBadge.h"

#include <functional>
#include <vector>

namespace loom
{

/// A desktop that shows what it is given, once it is allowed to; asked, it answers as the test says.
class FakeDesktopNotifications final : public DesktopNotifications
{
public:
    [[nodiscard]] QCoro::Task<DesktopPermission> permission() override { co_return current; }
    [[nodiscard]] QCoro::Task<DesktopPermission> requestPermission() override
    {
        ++asked;
        current = answer;
        co_return current;
    }
    void post(const DesktopNotice& notice) override
    {
        if (posting)
            posting(notice);
        posted.push_back(notice);
    }
    void withdraw(const QString& requestIdentifier) override { withdrawn.append(requestIdentifier); }

    DesktopPermission current = DesktopPermission::NotDetermined;
    DesktopPermission answer = DesktopPermission::Authorised;
    int asked = 0;
    std::function<void(const DesktopNotice&)> posting; ///< called before anything is shown
    std::vector<DesktopNotice> posted;
    QStringList withdrawn;
};

/// The numbers that were shown at the application's icon, in order.
class FakeLauncherBadge final : public LauncherBadge
{
public:
    void show(int count) override { shown.push_back(count); }

    std::vector<int> shown;
};

} // namespace loom
