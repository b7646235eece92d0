#pragma once

#include "net/Work.h"
#include "notify/AppNotification.h"
#include "notify/DesktopNotifications.h"
#include "notify/NotificationLedger.h"
#include "notify/NotificationSources.h"

#include <deque>
#include <optional>

namespace loom
{

class Clock;
class DataFolder;
class InboxNotices;
class NetworkStatus;
class NotificationBannerCenter;
class Preferences;
class Random;

/// The one that delivers news: looks where it comes from, decides what is new, and hands each piece once to the banner
/// and to the desktop. One per process; main thread.
class DesktopNotifier final : public QObject
{
    Q_OBJECT
    Q_PROPERTY(bool isChecking READ isChecking NOTIFY checkingChanged)

public:
    /// Between two looks: while a window is open, and otherwise.
    static constexpr std::chrono::seconds watchedPause{60};
    static constexpr std::chrono::seconds unwatchedPause{300};
    /// So many new pieces of one look are each shown; one digest per category stands for those beyond.
    static constexpr std::size_t mostAtOnce = 20;

    /// What it needs; all of it outlives the notifier.
    struct Services {
        Preferences& preferences;
        DataFolder& folder;
        Clock& clock;
        Random& random;
        NetworkStatus& network;
        NotificationBannerCenter& banners;
        DesktopNotifications& desktop;
        InboxNotices& inbox;
        AccountNotificationsSource account;
        SupportRepliesSource support;
        /// Of who is signed in, empty for a guest; nothing while that is not known.
        std::function<std::optional<QString>()> accountID;
        std::function<bool()> hasOpenWindow;
    };

    explicit DesktopNotifier(Services services, QObject* parent = nullptr);
    ~DesktopNotifier() override;

    /// Begins to look for news, at once and from time to time.
    void start();
    void stop();
    /// Looks now, unless it is looking already, is offline, or does not know yet whose news it would be.
    Q_INVOKABLE void check();
    /// Somebody signed in or out, or it became known who is signed in.
    void accountChanged();

    void deliver(const AppNotification& notification);
    void deliverOrderPlaced(const QString& orderName);
    Q_INVOKABLE void deliverUnavailable(const QString& featureKey);
    void deliverUpdateFailed();
    Q_INVOKABLE void deliverPreview();
    /// The conversation with customer service came on screen: nobody has to be told of its replies any more.
    void supportSeen();

    /// None while it is not known who is signed in.
    [[nodiscard]] const std::optional<NotificationLedger>& ledger() const { return m_ledger; }
    [[nodiscard]] const QSet<QString>& inFlight() const { return m_inFlight; }
    [[nodiscard]] bool isChecking() const { return m_checking.isRunning(); }
    [[nodiscard]] bool didAskPermission() const { return m_didAskPermission; }

Q_SIGNALS:
    void checkingChanged();
    /// The shopper clicked one on the desktop: a window comes to the front, with the token, and opens what it is about.
    void opened(const loom::AppNotification& notification, const QString& activationToken);
    /// The settings are to be shown; they open at the page about notifications.
    void settingsRequested(const QString& activationToken);

private:
    /// One that may be news.
    struct Arrival {
        AppNotification notification;
        std::optional<QDateTime> inboxDate; ///< for those that this machine keeps itself
        bool isSeen = false;                ///< it is to be recorded, but not shown
    };
    /// What a source said.
    struct Reading {
        std::vector<Arrival> arrivals;
        bool isWhole = false; ///< nothing was left out
    };

    [[nodiscard]] QCoro::Task<> lookFromTimeToTime();
    [[nodiscard]] QCoro::Task<> look();
    /// Who takes stock takes along what is dated before the ledger began, as seen.
    [[nodiscard]] QCoro::Task<Reading> supportReplies(bool takesStock, std::stop_token stop);
    [[nodiscard]] QCoro::Task<Reading> accountNotifications(QString account, bool takesStock, std::stop_token stop);
    [[nodiscard]] bool hasSupportConversation();
    /// That of these bytes, if it is the owner's.
    [[nodiscard]] QCoro::Task<> openLedger(std::optional<QByteArray> bytes);
    void useLedger(NotificationLedger ledger);
    void saveLedger();
    void letGoOfOwner();
    [[nodiscard]] QCoro::Task<> deliverAll(std::vector<Arrival> arrivals, std::stop_token stop);
    [[nodiscard]] std::vector<Arrival> recorded(std::vector<Arrival> arrivals);
    void showAll(const std::vector<Arrival>& arrivals);
    void show(const AppNotification& notification);
    [[nodiscard]] QCoro::Task<> postWaiting();
    void clicked(const QMap<QString, QString>& userInfo, const QString& activationToken);
    void markRead(const QString& id);
    /// From wherever it shows, or is about to.
    void takeBack(const QString& id);
    [[nodiscard]] bool isSupportOnScreen() const;
    [[nodiscard]] bool isSwitchedOn(const AppNotification& notification) const;
    [[nodiscard]] QString currentAccount() const { return m_services.accountID().value_or(QString()); }

    Services m_services;
    QString m_owner; ///< whose ledger is open, or about to be
    std::optional<NotificationLedger> m_ledger;
    QSet<QString> m_inFlight;
    bool m_didAskPermission = false;
    bool m_didReadAll = false;                 ///< the whole list of the account, since it signed in
    bool m_didBreakOff = false;                ///< behind the last page that was read there may still be news
    std::vector<AppNotification> m_unassigned; ///< delivered before the ledger was open
    std::deque<DesktopNotice> m_posts;         ///< on their way to the desktop
    QStringList m_posted;                      ///< request identifiers of what belongs to the account
    std::stop_source m_owned;                  ///< stopped when the owner changes
    Work m_loop;
    Work m_checking;
    Work m_opening;
    Work m_posting;
};

} // namespace loom
