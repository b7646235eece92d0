#pragma once

#include "net/Work.h"
#include "notify/DesktopNotifications.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDeadlineTimer>
#include <QHash>
#include <QMap>
#include <QStringList>

#include <chrono>
#include <deque>
#include <optional>

namespace loom
{

/// Notifications by the desktop's server (org.freedesktop.Notifications). Whether they are allowed is whether one
/// answers. Says and asks nothing before it is asked for permission. Main thread; never waits.
class FreedesktopNotifications final : public DesktopNotifications
{
    Q_OBJECT

public:
    /// After a server gave no answer it is asked again when so much time has passed.
    explicit FreedesktopNotifications(QString applicationID, QObject* parent = nullptr,
                                      std::chrono::milliseconds pause = std::chrono::minutes(1));

    [[nodiscard]] QCoro::Task<DesktopPermission> permission() override;
    [[nodiscard]] QCoro::Task<DesktopPermission> requestPermission() override;
    void post(const DesktopNotice& notice) override;
    void withdraw(const QString& requestIdentifier) override;

private:
    Q_SLOT void actionInvoked(uint id, const QString& action);
    Q_SLOT void activationTokenGiven(uint id, const QString& token);
    Q_SLOT void notificationClosed(uint id, uint reason);
    void follow();
    void serverChanged(const QString& before, const QString& now);
    void forgetServer();
    [[nodiscard]] QCoro::Task<bool> readCapabilities(std::stop_token stop);
    [[nodiscard]] QCoro::Task<> postWaiting();
    /// False when the server it was meant for is gone.
    [[nodiscard]] bool take(const DesktopNotice& notice, const QDBusMessage& answer);
    [[nodiscard]] QVariantList argumentsOf(const DesktopNotice& notice) const;
    [[nodiscard]] bool can(const char* capability) const;
    void close(const QString& requestIdentifier);

    QString m_applicationID;
    QDBusConnection m_bus;
    bool m_isFollowing = false;
    DesktopPermission m_permission = DesktopPermission::NotDetermined;
    std::optional<QStringList> m_capabilities; ///< of the server that runs, once it was asked
    std::chrono::milliseconds m_pause;
    std::optional<QDeadlineTimer> m_asksAgain; ///< when, after it gave no answer
    std::deque<DesktopNotice> m_waiting;
    QString m_sending;                 ///< the request identifier of the one that the server has not answered yet
    bool m_isTakenBack = false;        ///< that one
    QHash<QString, uint> m_ids;        ///< the server's, of what is on screen, by request identifier
    QMap<uint, DesktopNotice> m_known; ///< what it may still report a click on, by its own id
    QHash<uint, QString> m_tokens;     ///< each for the action that is reported next
    Work m_asking;
    Work m_posting;
};

} // namespace loom
