#include "platform/FreedesktopNotifications.h"

#include "base/Log.h"

#include <QCoreApplication>
#include <QDBusServiceWatcher>
#include <qcoro/qcorodbuspendingcall.h>

namespace loom
{

namespace
{

const QString service = QStringLiteral("org.freedesktop.Notifications");
const QString path = QStringLiteral("/org/freedesktop/Notifications");
const QString interface = service;
const QString defaultAction = QStringLiteral("default");
const QString settingsAction = QStringLiteral("settings");

/// A server that takes longer does not answer at all.
constexpr int answerTimeout = 5000; // milliseconds
/// Of so many a click is still understood: desktops keep what has left the screen in a list.
constexpr qsizetype mostKnown = 200;
/// The reason of a notification that was taken back by whoever posted it.
constexpr uint takenBack = 3;

QDBusMessage call(const char* method)
{
    return QDBusMessage::createMethodCall(service, path, interface, QLatin1String(method));
}

/// There is a server, but it said nothing.
bool isSilence(QDBusError::ErrorType error)
{
    return error == QDBusError::NoReply || error == QDBusError::Timeout || error == QDBusError::TimedOut;
}

} // namespace

FreedesktopNotifications::FreedesktopNotifications(QString applicationID, QObject* parent,
                                                   std::chrono::milliseconds pause)
    : DesktopNotifications(parent)
    , m_applicationID(std::move(applicationID))
    , m_bus(QDBusConnection::sessionBus())
    , m_pause(pause)
{
}

QCoro::Task<DesktopPermission> FreedesktopNotifications::permission()
{
    // One that was too busy to answer is not to be without news for the rest of the run.
    if (m_asksAgain && m_asksAgain->hasExpired() && !m_asking.isRunning()) {
        const Work::Run run = m_asking.begin();
        static_cast<void>(co_await readCapabilities(run.stop()));
        if (run.isStopped())
            co_return DesktopPermission::Denied;
    }
    co_return m_permission;
}

QCoro::Task<DesktopPermission> FreedesktopNotifications::requestPermission()
{
    follow();
    const Work::Run run = m_asking.begin();
    static_cast<void>(co_await readCapabilities(run.stop()));
    co_return run.isStopped() ? DesktopPermission::Denied : m_permission;
}

void FreedesktopNotifications::follow()
{
    if (!m_bus.isConnected() || std::exchange(m_isFollowing, true))
        return;
    auto* const watcher = new QDBusServiceWatcher(service, m_bus, QDBusServiceWatcher::WatchForOwnerChange, this);
    connect(watcher, &QDBusServiceWatcher::serviceOwnerChanged, this,
            [this](const QString&, const QString& before, const QString& now) { serverChanged(before, now); });
    // Only what the owner of the name says is heard.
    const bool isHeard = m_bus.connect(service, path, interface, QStringLiteral("ActionInvoked"), this,
                                       SLOT(actionInvoked(uint, QString))) &&
                         m_bus.connect(service, path, interface, QStringLiteral("ActivationToken"), this,
                                       SLOT(activationTokenGiven(uint, QString))) &&
                         m_bus.connect(service, path, interface, QStringLiteral("NotificationClosed"), this,
                                       SLOT(notificationClosed(uint, uint)));
    if (!isHeard)
        qCWarning(logPlatform) << "cannot follow the desktop's notifications";
}

void FreedesktopNotifications::serverChanged(const QString& before, const QString& now)
{
    if (!before.isEmpty())
        forgetServer();
    if (!now.isEmpty())
        m_permission = DesktopPermission::Authorised;
}

void FreedesktopNotifications::forgetServer()
{
    // Another one counts anew, and may be able to do other things.
    m_capabilities.reset();
    m_asksAgain.reset();
    m_ids.clear();
    m_known.clear();
    m_tokens.clear();
}

QCoro::Task<bool> FreedesktopNotifications::readCapabilities(std::stop_token stop)
{
    const QDBusMessage answer = co_await m_bus.asyncCall(call("GetCapabilities"), answerTimeout);
    if (stop.stop_requested())
        co_return false;
    const bool isAnswer = answer.type() == QDBusMessage::ReplyMessage;
    m_permission = isAnswer ? DesktopPermission::Authorised : DesktopPermission::Denied;
    if (isAnswer)
        m_capabilities = answer.arguments().value(0).toStringList();
    m_asksAgain.reset();
    if (!isAnswer && isSilence(QDBusError(answer).type()))
        m_asksAgain = QDeadlineTimer(m_pause);
    co_return isAnswer;
}

void FreedesktopNotifications::post(const DesktopNotice& notice)
{
    m_waiting.push_back(notice);
    if (!m_posting.isRunning())
        static_cast<void>(postWaiting());
}

QCoro::Task<> FreedesktopNotifications::postWaiting()
{
    const Work::Run run = m_posting.begin();
    // One after the other: the id that the server gives is needed when the next one is to take its place.
    bool isAgain = false;
    while (!m_waiting.empty()) {
        if (!m_capabilities) {
            const bool isThere = co_await readCapabilities(run.stop());
            if (run.isStopped())
                co_return;
            if (!isThere) {
                m_waiting.clear();
                co_return;
            }
        }
        if (m_waiting.empty())
            co_return; // taken back meanwhile
        const DesktopNotice notice = std::move(m_waiting.front());
        m_waiting.pop_front();
        QDBusMessage message = call("Notify");
        message.setArguments(argumentsOf(notice));
        m_sending = notice.requestIdentifier;
        m_isTakenBack = false;
        const QDBusMessage answer = co_await m_bus.asyncCall(message, answerTimeout);
        if (run.isStopped())
            co_return;
        m_sending.clear();
        const bool isGone = !take(notice, answer);
        if (m_isTakenBack) {
            close(notice.requestIdentifier);
            isAgain = false;
            continue;
        }
        if (isGone && !isAgain)
            m_waiting.push_front(notice); // to whichever comes in its place
        isAgain = isGone && !isAgain;
    }
}

bool FreedesktopNotifications::take(const DesktopNotice& notice, const QDBusMessage& answer)
{
    if (answer.type() != QDBusMessage::ReplyMessage) {
        qCWarning(logPlatform) << "the desktop refuses a notification:" << answer.errorName();
        const QDBusError::ErrorType error = QDBusError(answer).type();
        if (error != QDBusError::ServiceUnknown)
            return true; // it may have shown it
        forgetServer();
        return false;
    }
    const uint id = answer.arguments().value(0).toUInt();
    m_ids.insert(notice.requestIdentifier, id);
    m_known.insert(id, notice);
    if (m_known.size() > mostKnown)
        m_known.erase(m_known.begin());
    return true;
}

QVariantList FreedesktopNotifications::argumentsOf(const DesktopNotice& notice) const
{
    QVariantMap hints{{QStringLiteral("desktop-entry"), m_applicationID},
                      {QStringLiteral("urgency"), QVariant::fromValue(uchar{1})}};
    if (can("sound") && notice.playsSound)
        hints.insert(QStringLiteral("sound-name"), QStringLiteral("message-new-instant"));
    else if (can("sound"))
        hints.insert(QStringLiteral("suppress-sound"), true);
    QStringList actions;
    if (can("actions")) {
        actions = {defaultAction, QCoreApplication::translate("Loomstreet", "Open"), settingsAction,
                   QCoreApplication::translate("Loomstreet", "Settings")};
    }
    return {QStringLiteral("LOOMSTREET"),
            m_ids.value(notice.requestIdentifier, 0),
            m_applicationID, // the name of the icon, too
            notice.title,
            can("body-markup") ? notice.body.toHtmlEscaped() : notice.body,
            actions,
            hints,
            -1};
}

bool FreedesktopNotifications::can(const char* capability) const
{
    return m_capabilities && m_capabilities->contains(QLatin1String(capability));
}

void FreedesktopNotifications::withdraw(const QString& requestIdentifier)
{
    std::erase_if(m_waiting, [&requestIdentifier](const DesktopNotice& notice) {
        return notice.requestIdentifier == requestIdentifier;
    });
    if (m_sending == requestIdentifier)
        m_isTakenBack = true; // its id comes with the answer
    else
        close(requestIdentifier);
}

void FreedesktopNotifications::close(const QString& requestIdentifier)
{
    const auto id = m_ids.constFind(requestIdentifier);
    if (id == m_ids.cend())
        return;
    QDBusMessage message = call("CloseNotification");
    message << *id;
    m_ids.erase(id); // another of the same is a new one
    m_bus.send(message);
}

void FreedesktopNotifications::activationTokenGiven(uint id, const QString& token)
{
    if (m_known.contains(id))
        m_tokens.insert(id, token);
}

void FreedesktopNotifications::actionInvoked(uint id, const QString& action)
{
    const QString token = m_tokens.take(id);
    const auto known = m_known.constFind(id);
    if (known == m_known.cend())
        return; // that of another program
    const QMap<QString, QString> userInfo = known->userInfo;
    // It was followed; not every server puts it away by itself.
    close(QString(known->requestIdentifier));
    if (action == settingsAction)
        Q_EMIT settingsRequested(token);
    else if (action == defaultAction)
        Q_EMIT activated(userInfo, token);
}

void FreedesktopNotifications::notificationClosed(uint id, uint reason)
{
    const auto known = m_known.constFind(id);
    if (known == m_known.cend())
        return;
    m_ids.remove(known->requestIdentifier);
    m_tokens.remove(id);
    if (reason == takenBack)
        m_known.erase(known);
}

} // namespace loom
