#include "notify/DesktopNotifier.h"

#include "base/Clock.h"
#include "base/Random.h"
#include "catalog/DisplayText.h"
#include "net/NetworkStatus.h"
#include "notify/InboxNotices.h"
#include "notify/NoticeText.h"
#include "notify/NotificationBannerCenter.h"
#include "notify/NotificationDigest.h"
#include "notify/NotificationType.h"
#include "notify/OwnNotices.h"
#include "storage/DataFolder.h"

#include <QtConcurrentRun>
#include <qcoro/qcorofuture.h>

namespace loom
{

namespace
{

const QString requestPrefix = QStringLiteral("lst-");
const QString accountPrefix = QStringLiteral("account-");
constexpr std::size_t mostUnassigned = 50;
/// Nobody reads more than that of it on the desktop.
constexpr qsizetype longestBody = 500;

DesktopNotice noticeOf(const AppNotification& notification, bool playsSound)
{
    QMap<QString, QString> userInfo{{QStringLiteral("id"), notification.id},
                                    {QStringLiteral("title"), notification.title},
                                    {QStringLiteral("body"), notification.body},
                                    {QStringLiteral("symbol"), notification.symbol},
                                    {QStringLiteral("type"), notification.type}};
    if (!notification.link.isEmpty())
        userInfo.insert(QStringLiteral("link"), notification.link);
    if (!notification.accountID.isEmpty())
        userInfo.insert(QStringLiteral("accountID"), notification.accountID);
    return {.requestIdentifier = requestPrefix + notification.id,
            .title = notification.title,
            .body = displayText(notification.body, longestBody),
            .playsSound = playsSound,
            .userInfo = userInfo};
}

AppNotification notificationOf(const QMap<QString, QString>& userInfo)
{
    return {.id = userInfo.value(QStringLiteral("id")),
            .title = userInfo.value(QStringLiteral("title")),
            .body = userInfo.value(QStringLiteral("body")),
            .symbol = userInfo.value(QStringLiteral("symbol")),
            .type = userInfo.value(QStringLiteral("type")),
            .link = userInfo.value(QStringLiteral("link")),
            .accountID = userInfo.value(QStringLiteral("accountID"))};
}

bool isSupport(const AppNotification& notification)
{
    return notification.type == QLatin1String("support");
}

Result<NotificationLedger, QString> readLedger(const QByteArray& bytes)
{
    return decodeJson(bytes, decodeNotificationLedger);
}

} // namespace

DesktopNotifier::DesktopNotifier(Services services, QObject* parent)
    : QObject(parent)
    , m_services(std::move(services))
    , m_checking([this] { Q_EMIT checkingChanged(); })
{
    connect(&m_services.desktop, &DesktopNotifications::activated, this, &DesktopNotifier::clicked);
    connect(&m_services.desktop, &DesktopNotifications::settingsRequested, this, [this](const QString& token) {
        m_services.preferences.set(preferences::settingsTab, QStringLiteral("notifications"));
        Q_EMIT settingsRequested(token);
    });
    connect(&m_services.banners, &NotificationBannerCenter::opened, this, [this](const AppNotification& notification) {
        takeBack(notification.id);
        markRead(notification.id);
    });
    connect(&m_services.network, &NetworkStatus::changed, this, [this] {
        if (m_loop.isRunning())
            check();
    });
}

DesktopNotifier::~DesktopNotifier()
{
    m_owned.request_stop();
}

void DesktopNotifier::start()
{
    accountChanged();
    static_cast<void>(lookFromTimeToTime());
}

void DesktopNotifier::stop()
{
    m_loop.stop();
    m_checking.stop();
}

QCoro::Task<> DesktopNotifier::lookFromTimeToTime()
{
    const Work::Run run = m_loop.begin();
    while (!run.isStopped()) {
        check();
        co_await m_services.clock.sleep(m_services.hasOpenWindow() ? watchedPause : unwatchedPause, run.stop());
    }
}

void DesktopNotifier::accountChanged()
{
    const std::optional<QString> account = m_services.accountID();
    if (!account)
        return;
    const QString owner = NotificationLedger::ownerOf(*account);
    if (owner == m_owner)
        return;
    letGoOfOwner();
    const bool isFirst = std::exchange(m_owner, owner).isEmpty();
    m_services.banners.keepOnly(*account);
    m_services.inbox.setOwner(owner);
    // One from before the account changed is of no use to anybody, not even to whoever came back.
    static_cast<void>(openLedger(isFirst ? m_services.folder.read(NotificationLedger::fileName) : std::nullopt));
}

void DesktopNotifier::letGoOfOwner()
{
    std::exchange(m_owned, std::stop_source()).request_stop();
    m_checking.stop();
    m_posts.clear();
    m_inFlight.clear();
    m_didReadAll = false;
    m_didBreakOff = false;
    for (const QString& request : std::exchange(m_posted, {}))
        m_services.desktop.withdraw(request);
}

QCoro::Task<> DesktopNotifier::openLedger(std::optional<QByteArray> bytes)
{
    const Work::Run run = m_opening.begin();
    m_ledger.reset();
    if (!bytes) {
        useLedger({});
        co_return;
    }
    auto ledger = co_await QtConcurrent::run(readLedger, *bytes);
    if (run.isStopped())
        co_return;
    if (!ledger)
        m_services.folder.markUnreadable(NotificationLedger::fileName, ledger.error());
    useLedger(ledger ? *std::move(ledger) : NotificationLedger());
}

void DesktopNotifier::useLedger(NotificationLedger ledger)
{
    const QDateTime now = m_services.clock.now();
    const bool isFresh = ledger.owner() != m_owner;
    m_ledger = isFresh ? NotificationLedger(m_owner, now) : std::move(ledger);
    if (isFresh)
        saveLedger();
    for (const AppNotification& notification : std::exchange(m_unassigned, {}))
        deliver(notification);
    if (m_loop.isRunning())
        check();
}

void DesktopNotifier::saveLedger()
{
    m_services.folder.save(NotificationLedger::fileName, m_ledger->encoder());
}

void DesktopNotifier::deliver(const AppNotification& notification)
{
    if (!m_ledger) {
        if (m_unassigned.size() < mostUnassigned)
            m_unassigned.push_back(notification);
        return;
    }
    static_cast<void>(
        deliverAll({{.notification = notification, .inboxDate = m_services.clock.now()}}, m_owned.get_token()));
}

void DesktopNotifier::deliverOrderPlaced(const QString& orderName)
{
    AppNotification notification = ownNotices::orderPlaced(orderName, m_services.random.uuid());
    notification.accountID = currentAccount();
    deliver(notification);
}

void DesktopNotifier::deliverUnavailable(const QString& featureKey)
{
    deliver(ownNotices::unavailable(featureKey));
}

void DesktopNotifier::deliverUpdateFailed()
{
    deliver(ownNotices::updateFailed());
}

void DesktopNotifier::deliverPreview()
{
    const AppNotification notification = ownNotices::preview(m_services.random.uuid());
    // It is for whoever sits here, and there is nothing in it to read later.
    if (m_ledger)
        static_cast<void>(deliverAll({{.notification = notification, .inboxDate = {}}}, m_owned.get_token()));
    else
        show(notification);
}

QCoro::Task<> DesktopNotifier::deliverAll(std::vector<Arrival> arrivals, std::stop_token stop)
{
    arrivals = recorded(std::move(arrivals));
    if (arrivals.empty())
        co_return;
    for (const Arrival& arrival : arrivals) {
        if (arrival.inboxDate)
            m_services.inbox.add(arrival.notification, *arrival.inboxDate);
    }
    saveLedger();
    // On the disk first, on the screen second: whatever ends the process between the two, nothing is shown twice, which
    // is the worse of what could happen, for what was not shown still stands in the inbox. A disk that takes nothing is
    // no reason to keep quiet; what is recorded in memory alone is shown once in this run.
    co_await m_services.folder.written();
    if (stop.stop_requested())
        co_return;
    showAll(arrivals);
    for (const Arrival& arrival : arrivals)
        m_inFlight.remove(arrival.notification.id);
}

std::vector<DesktopNotifier::Arrival> DesktopNotifier::recorded(std::vector<Arrival> arrivals)
{
    const QString account = currentAccount();
    std::erase_if(arrivals, [&](const Arrival& arrival) {
        const AppNotification& notification = arrival.notification;
        const bool isOthers = !notification.accountID.isEmpty() && notification.accountID != account;
        if (isOthers || m_inFlight.contains(notification.id) || !m_ledger->record(notification.id))
            return true;
        m_inFlight.insert(notification.id);
        return false;
    });
    return arrivals;
}

void DesktopNotifier::showAll(const std::vector<Arrival>& arrivals)
{
    std::size_t count = 0;
    std::vector<AppNotification> beyond;
    for (const Arrival& arrival : arrivals) {
        if (arrival.isSeen || !isSwitchedOn(arrival.notification))
            continue; // recorded all the same, so that it does not come when its category is switched on
        if (isSupport(arrival.notification) && isSupportOnScreen())
            continue; // it came on screen in the meantime
        if (++count <= mostAtOnce)
            show(arrival.notification);
        else
            beyond.push_back(arrival.notification);
    }
    for (const AppNotification& digest : digestsOf(beyond, currentAccount()))
        show(digest);
}

void DesktopNotifier::show(const AppNotification& notification)
{
    const auto isOn = [this](const Preference<bool>& preference) {
        return m_services.preferences.value(preference);
    };
    if (isOn(preferences::inAppNotifications))
        m_services.banners.enqueue(notification);
    if (!isOn(preferences::desktopNotifications))
        return;
    m_posts.push_back(noticeOf(notification, isOn(preferences::notifySound)));
    if (!m_posting.isRunning())
        static_cast<void>(postWaiting());
}

QCoro::Task<> DesktopNotifier::postWaiting()
{
    const Work::Run run = m_posting.begin();
    while (!m_posts.empty()) {
        DesktopPermission permission = co_await m_services.desktop.permission();
        if (run.isStopped())
            co_return;
        if (permission == DesktopPermission::NotDetermined && !std::exchange(m_didAskPermission, true)) {
            permission = co_await m_services.desktop.requestPermission();
            if (run.isStopped())
                co_return;
        }
        if (m_posts.empty())
            co_return; // the owner changed meanwhile
        const DesktopNotice notice = std::move(m_posts.front());
        m_posts.pop_front();
        if (permission != DesktopPermission::Authorised && permission != DesktopPermission::Provisional)
            continue;
        if (isPersonal(notificationOf(notice.userInfo)))
            m_posted.append(notice.requestIdentifier);
        m_services.desktop.post(notice);
    }
}

bool DesktopNotifier::isSwitchedOn(const AppNotification& notification) const
{
    // Whoever asks for a preview wants to see one.
    return notification.type == QLatin1String("preview") ||
           m_services.preferences.value(entryOf(notificationType(notification.type).category).isOn);
}

void DesktopNotifier::clicked(const QMap<QString, QString>& userInfo, const QString& activationToken)
{
    AppNotification notification = notificationOf(userInfo);
    if (!notification.accountID.isEmpty() && notification.accountID != currentAccount()) {
        Q_EMIT opened({}, activationToken); // it leads to what is not theirs who are here now
        return;
    }
    m_services.banners.withdraw(notification.id);
    markRead(notification.id);
    Q_EMIT opened(notification, activationToken);
}

void DesktopNotifier::supportSeen()
{
    QStringList seen{QStringLiteral("digest-support")};
    for (const InboxNotice& notice : m_services.inbox.notices()) {
        if (isSupport(notice.notification))
            seen.append(notice.notification.id);
    }
    for (const QString& id : seen) {
        takeBack(id);
        m_services.inbox.markRead(id);
    }
}

void DesktopNotifier::takeBack(const QString& id)
{
    const QString request = requestPrefix + id;
    std::erase_if(m_posts, [&request](const DesktopNotice& notice) { return notice.requestIdentifier == request; });
    m_services.desktop.withdraw(request);
    m_services.banners.withdraw(id);
}

bool DesktopNotifier::isSupportOnScreen() const
{
    return m_services.support.isOnScreen && m_services.support.isOnScreen();
}

void DesktopNotifier::markRead(const QString& id)
{
    if (!id.startsWith(accountPrefix))
        m_services.inbox.markRead(id);
    else if (m_services.account.markRead)
        m_services.account.markRead(id.mid(accountPrefix.size()));
}

} // namespace loom
