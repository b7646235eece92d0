#pragma once

#include "notify/DesktopNotifier.h"
#include "notify/InboxNotices.h"
#include "notify/NotificationBannerCenter.h"
#include "storage/DataFolder.h"
#include "storage/Preferences.h"
#include "support/FakeClock.h"
#include "support/FakeDesktopNotifications.h"
#include "support/FakeNetworkStatus.h"
#include "support/FakeRandom.h"
#include "support/Running.h"

#include <QFile>
#include <QTemporaryDir>
#include <gtest/gtest.h>

namespace loom
{

/// What a notifier needs, with sources that say what the test foretold.
class NotifierFixture : public testing::Test
{
protected:
    NotifierFixture() { banners.attach(&window); }
    ~NotifierFixture() override { folder.waitUntilWritten(); }

    [[nodiscard]] DesktopNotifier::Services services()
    {
        return {.preferences = preferences,
                .folder = folder,
                .clock = clock,
                .random = random,
                .network = network,
                .banners = banners,
                .desktop = desktop,
                .inbox = inbox,
                .account = {.page = [this](const QString& cursor, std::stop_token) { return readPage(cursor); },
                            .markRead =
                                [this](const QString& id) {
                                    read.append(id);
                                }},
                .support = {.replies = [this](std::stop_token) { return readReplies(); },
                            .isOnScreen =
                                [this] {
                                    return isSupportOnScreen;
                                }},
                .accountID = [this] { return account; },
                .hasOpenWindow =
                    [this] {
                        return hasOpenWindow;
                    }};
    }

    /// Begins a run of the application, in place of the one before.
    void launch()
    {
        notifier.reset();
        folder.waitUntilWritten();
        notifier = std::make_unique<DesktopNotifier>(services());
        notifier->start();
        settle();
    }
    void become(const QString& newAccount)
    {
        account = newAccount;
        notifier->accountChanged();
        settle();
    }
    void look()
    {
        notifier->check();
        settle();
    }
    /// Until everything that can be done without waiting is done.
    void settle()
    {
        waitUntil(
            [this] {
                folder.waitUntilWritten();
                drainEvents();
                return !notifier || !account ||
                       (notifier->ledger() && !notifier->isChecking() && notifier->inFlight().isEmpty());
            },
            "everything is delivered");
    }

    /// Something that the account is told `seconds` from now.
    [[nodiscard]] AccountNotification item(const QString& id, int seconds = 1, const char* type = "order_shipped") const
    {
        return {.id = id,
                .type = QString::fromLatin1(type),
                .title = QStringLiteral("Title ") + id,
                .body = QStringLiteral("Body ") + id,
                .link = QStringLiteral("/orders"),
                .image = {},
                .date = clock.now().addSecs(seconds)};
    }
    /// So many of them, of a type.
    void addItems(int count, const char* type = "order_shipped")
    {
        for (int i = 0; i < count; ++i)
            list.push_back(item(QString::fromLatin1(type) + QString::number(i), 1, type));
    }
    /// Identifiers of what went to the desktop, in order.
    [[nodiscard]] QStringList posted() const
    {
        QStringList ids;
        for (const DesktopNotice& notice : desktop.posted)
            ids.append(notice.userInfo.value(QStringLiteral("id")));
        return ids;
    }
    /// Of every banner there is and was, in order; each is looked at and dismissed.
    QStringList banner()
    {
        for (; banners.current(); banners.dismiss())
            m_banners.append(banners.current()->id);
        return m_banners;
    }
    [[nodiscard]] QString ledgerPath() const
    {
        return directory.path() + QStringLiteral("/lst_notification_delivery_v2.json");
    }
    [[nodiscard]] QByteArray ledgerOnDisk() const
    {
        QFile file(ledgerPath());
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }

    QTemporaryDir directory;
    DataFolder folder{directory.path()};
    Preferences preferences{folder};
    FakeClock clock;
    FakeRandom random;
    FakeNetworkStatus network;
    FakeDesktopNotifications desktop;
    InboxNotices inbox{folder};
    NotificationBannerCenter banners{clock};
    QObject window;

    std::optional<QString> account = QStringLiteral("7");
    bool hasOpenWindow = true;
    bool isSupportOnScreen = false;
    std::vector<AccountNotification> list; ///< what the server says, the newest first
    std::size_t pageSize = 1000;
    bool isFailing = false;
    std::size_t failsFrom = SIZE_MAX; ///< a page that begins there cannot be read
    std::vector<SupportReply> replies;
    int pagesRead = 0;
    int repliesRead = 0;
    QStringList read;
    std::unique_ptr<DesktopNotifier> notifier; ///< the last: it uses all the others

private:
    QCoro::Task<ApiResult<NotificationPage>> readPage(QString cursor)
    {
        ++pagesRead;
        if (isFailing)
            co_return apiFailure(APIError::Timeout{});
        const std::size_t from = cursor.toULongLong();
        if (from >= failsFrom)
            co_return apiFailure(APIError::Timeout{});
        const std::size_t to = std::min(list.size(), from + pageSize);
        NotificationPage page;
        page.notifications.assign(list.begin() + static_cast<std::ptrdiff_t>(from),
                                  list.begin() + static_cast<std::ptrdiff_t>(to));
        if (to < list.size())
            page.nextCursor = QString::number(to);
        co_return page;
    }
    QCoro::Task<ApiResult<std::vector<SupportReply>>> readReplies()
    {
        ++repliesRead;
        if (isFailing)
            co_return apiFailure(APIError::Timeout{});
        co_return replies;
    }

    QStringList m_banners;
};

} // namespace loom
