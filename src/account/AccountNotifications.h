#pragma once

#include "account/AccountContent.h"
#include "account/NotificationsAPI.h"

#include <QSet>

namespace loom
{

class Clock;
class DataFolder;
class WidgetClient;

/// What the customer was told, the newest first, as far as it was asked for. What is read here is read at once; the
/// backend hears of it as soon as it can, in the next run if need be. One per process; main thread.
class AccountNotifications final : public loom::AccountContent // in full, as QML knows it
{
    Q_OBJECT
    Q_PROPERTY(int unreadCount READ unreadCount NOTIFY listChanged)
    Q_PROPERTY(bool canLoadMore READ canLoadMore NOTIFY listChanged)
    Q_PROPERTY(bool isLoadingMore READ isLoadingMore NOTIFY loadingMoreChanged)
    Q_PROPERTY(QString moreErrorText READ moreErrorText NOTIFY loadingMoreChanged)

public:
    /// No more than so many are held.
    static constexpr std::size_t mostHeld = 10000;

    AccountNotifications(AuthStore& auth, Announcements& announcements, WidgetClient& widget, DataFolder& folder,
                         Clock& clock, QObject* parent = nullptr);

    [[nodiscard]] const std::vector<AccountNotification>& notifications() const { return m_list; }
    /// In all of the account's list; 0 when nobody is signed in.
    [[nodiscard]] int unreadCount() const;
    [[nodiscard]] bool canLoadMore() const { return !m_nextCursor.isEmpty() && m_list.size() < mostHeld; }
    [[nodiscard]] bool isLoadingMore() const { return m_loadingMore.isRunning(); }
    /// Why the last of loadMore() brought nothing; else empty.
    [[nodiscard]] QString moreErrorText() const;

    /// Asks for what is behind the last one.
    Q_INVOKABLE void loadMore();
    Q_INVOKABLE void markRead(const QString& id);
    Q_INVOKABLE void markAllRead();

    /// A page for whoever looks for news; what it says is taken over here too.
    [[nodiscard]] QCoro::Task<ApiResult<NotificationPage>> page(QString cursor, std::stop_token stop);

Q_SIGNALS:
    /// The list, or how much of it is unread.
    void listChanged();
    void loadingMoreChanged();

protected:
    [[nodiscard]] QCoro::Task<ApiResult<void>> fetch(std::stop_token stop) override;
    [[nodiscard]] bool restore() override;
    void clear() override;

private:
    /// Where the list comes from.
    enum class Origin { Nowhere, File, Backend };

    [[nodiscard]] QCoro::Task<ApiResult<NotificationPage>> readPage(QString cursor, std::stop_token stop);
    void takeFirst(const NotificationPage& page);
    void takeNext(const NotificationPage& page);
    /// What a page that is older than the backend's last word on what was read says of it does not count.
    void keepRead(NotificationPage& page) const;
    /// Takes out of what the backend calls unread what was read here.
    void applyUntold(NotificationPage& page);
    void restoreUntold();
    void saveList();
    void saveUntold();
    [[nodiscard]] QCoro::Task<> readOn();
    void tellRead();
    [[nodiscard]] QCoro::Task<> tellBackend();
    void confirm(const QStringList& ids, int unread);

    NotificationsAPI m_api;
    DataFolder& m_folder;
    Clock& m_clock;
    Origin m_origin = Origin::Nowhere;
    std::vector<AccountNotification> m_list;
    QString m_nextCursor;
    int m_unread = 0;         ///< as the backend says
    QSet<QString> m_untold;   ///< read here, which the backend has not confirmed
    bool m_isAllRead = false; ///< and it is about to be told that all are
    int m_confirmations = 0;  ///< how often it said that it heard
    bool m_didRestoreUntold = false;
    std::optional<APIError> m_moreFailure;
    Work m_loadingMore;
    Work m_telling;
};

} // namespace loom
