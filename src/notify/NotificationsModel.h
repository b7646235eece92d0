#pragma once

#include "account/AccountNotifications.h"

#include <QAbstractListModel>

namespace loom
{

class Clock;
class DateFormat;
class InboxNotices;

/// The inbox as rows of a page: what the account was told and what this machine said itself, the newest first, under
/// the tab that is chosen. Rows that stay are never taken away. Main thread.
class NotificationsModel : public QAbstractListModel
{
    Q_OBJECT
    Q_PROPERTY(int tab READ tab WRITE setTab NOTIFY tabChanged)
    Q_PROPERTY(int count READ count NOTIFY rowsChanged)
    Q_PROPERTY(bool isEverythingEmpty READ isEverythingEmpty NOTIFY rowsChanged)
    Q_PROPERTY(bool hasUnread READ hasUnread NOTIFY rowsChanged)
    Q_PROPERTY(bool canLoadMore READ canLoadMore NOTIFY rowsChanged)
    Q_PROPERTY(loom::AccountNotifications* account READ account CONSTANT)

public:
    enum Tab { All, System, Support, Vessa };
    Q_ENUM(Tab)
    enum Role {
        NotificationIdRole = Qt::UserRole + 1, ///< "notificationId"
        TitleRole,                             ///< "title"; never empty
        BodyRole,                              ///< "body"
        SymbolRole,                            ///< "symbol": the name of an icon
        LinkRole,                              ///< "link"; empty where a click leads nowhere
        PictureRole,                           ///< "picture": an address, often empty
        DateRole,    ///< "date": "3:04 PM" of today, or "Nov 20, 2026"; empty when it has none
        SectionRole, ///< "section": "Today" or "Earlier", in the language of the window
        UnreadRole,  ///< "isUnread"
        LocalRole,   ///< "isLocal": this machine said it
        SupportRole, ///< "isSupport": about the conversation with customer service
    };
    Q_ENUM(Role)

    NotificationsModel(AccountNotifications& account, InboxNotices& inbox, const DateFormat& dates, const Clock& clock,
                       QObject* parent = nullptr);

    [[nodiscard]] int tab() const { return m_tab; }
    void setTab(int tab);
    [[nodiscard]] int count() const { return static_cast<int>(m_rows.size()); }
    /// Under every tab.
    [[nodiscard]] bool isEverythingEmpty() const;
    /// Under every tab.
    [[nodiscard]] bool hasUnread() const;
    [[nodiscard]] bool canLoadMore() const;
    [[nodiscard]] AccountNotifications* account() const { return &m_account; }

    /// As much as brings some rows under this tab.
    Q_INVOKABLE void loadMore();
    Q_INVOKABLE void markRead(int row);
    Q_INVOKABLE void markAllRead();
    /// The day may have changed meanwhile.
    Q_INVOKABLE void refreshDays() { follow(); }

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
    [[nodiscard]] QHash<int, QByteArray> roleNames() const override;

Q_SIGNALS:
    void tabChanged();
    void rowsChanged();

private:
    struct Row {
        AccountNotification item;
        QString symbol; ///< empty for that of its type
        bool isLocal = false;
        bool isToday = false;

        [[nodiscard]] QString key() const { return (isLocal ? u'l' : u'a') + item.id; }

        bool operator==(const Row&) const = default;
    };

    [[nodiscard]] std::vector<Row> wantedRows() const;
    void follow();
    void show(std::vector<Row> rows);
    void want(int rows);
    void readOn();

    AccountNotifications& m_account;
    InboxNotices& m_inbox;
    const DateFormat& m_dates;
    const Clock& m_clock;
    int m_tab = All;
    int m_wanted = 0;       ///< so many rows are to be there, if the account's list has them
    std::size_t m_held = 0; ///< of that list, when it was last asked for more
    std::vector<Row> m_rows;
};

} // namespace loom
