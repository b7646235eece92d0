#include "platform/PortalShortcut.h"

#include "base/Log.h"
#include "platform/PortalRequest.h"

#include <QDBusArgument>
#include <QDBusMetaType>

namespace loom
{

namespace
{

const QString interface = QStringLiteral("org.freedesktop.portal.GlobalShortcuts");
const QString sessionInterface = QStringLiteral("org.freedesktop.portal.Session");
const QString shortcutID = QStringLiteral("mute");

/// As it travels: (sa{sv}).
struct Shortcut {
    QString id;
    QVariantMap properties;
};

QDBusArgument& operator<<(QDBusArgument& argument, const Shortcut& shortcut)
{
    argument.beginStructure();
    argument << shortcut.id << shortcut.properties;
    argument.endStructure();
    return argument;
}

const QDBusArgument& operator>>(const QDBusArgument& argument, Shortcut& shortcut)
{
    argument.beginStructure();
    argument >> shortcut.id >> shortcut.properties;
    argument.endStructure();
    return argument; // NOLINT: as every reading operator does
}

/// What the desktop calls the key that it bound in the end.
QString keyTextIn(const QVariant& shortcuts)
{
    if (!shortcuts.canConvert<QDBusArgument>())
        return {};
    const auto argument = shortcuts.value<QDBusArgument>();
    if (argument.currentSignature() != QLatin1String("a(sa{sv})"))
        return {};
    for (const Shortcut& shortcut : qdbus_cast<QList<Shortcut>>(argument)) {
        if (shortcut.id == shortcutID)
            return shortcut.properties.value(QStringLiteral("trigger_description")).toString().simplified();
    }
    return {};
}

} // namespace

PortalShortcut::PortalShortcut(QString preferred, QString preferredText)
    : m_bus(QDBusConnection::sessionBus())
    , m_preferred(std::move(preferred))
    , m_preferredText(std::move(preferredText))
{
}

QCoro::Task<PortalShortcut::Outcome> PortalShortcut::bind(QString purpose, std::stop_token stop)
{
    release();
    const QString token = QStringLiteral("loomstreet%1").arg(++m_sessions);
    // The portal may name it otherwise: its answer says so.
    m_session = PortalRequest::path(m_bus, "session", token);
    const QString session = m_session;
    const PortalAnswer created =
        co_await PortalRequest::ask(m_bus, PortalRequest::call(interface, "CreateSession"),
                                    {{QStringLiteral("session_handle_token"), token}}, token, stop);
    if (stop.stop_requested())
        co_return Outcome::Refused;
    if (!created.result) {
        m_session.clear();
        co_return created.isAsked ? Outcome::Refused : Outcome::Absent;
    }
    const QString given = created.result->value(QStringLiteral("session_handle")).toString();
    if (given.startsWith(PortalRequest::root))
        m_session = given;
    follow(true);

    qDBusRegisterMetaType<Shortcut>();
    qDBusRegisterMetaType<QList<Shortcut>>();
    QDBusMessage call = PortalRequest::call(interface, "BindShortcuts");
    const Shortcut wanted{
        .id = shortcutID,
        .properties = {{QStringLiteral("description"), purpose}, {QStringLiteral("preferred_trigger"), m_preferred}}};
    call << QVariant::fromValue(QDBusObjectPath(m_session)) << QVariant::fromValue(QList<Shortcut>{wanted})
         << QString();
    const PortalAnswer bound = co_await PortalRequest::ask(m_bus, call, {}, token + QStringLiteral("bind"), stop);
    if (stop.stop_requested())
        co_return Outcome::Refused;
    if (!bound.result || m_session.isEmpty()) {
        release();
        co_return Outcome::Refused;
    }
    m_isBound = true;
    m_keyText = keyTextIn(bound.result->value(QStringLiteral("shortcuts")));
    if (m_keyText.isEmpty())
        m_keyText = m_preferredText;
    co_return Outcome::Bound;
}

void PortalShortcut::follow(bool isFollowing)
{
    const QString signature = QStringLiteral("Activated");
    if (!isFollowing) {
        m_bus.disconnect(PortalRequest::service, PortalRequest::root, interface, signature, this,
                         SLOT(activated(QDBusObjectPath, QString, qulonglong, QVariantMap)));
        m_bus.disconnect(PortalRequest::service, m_session, sessionInterface, QStringLiteral("Closed"), this,
                         SLOT(closed()));
    } else if (!m_bus.connect(PortalRequest::service, PortalRequest::root, interface, signature, this,
                              SLOT(activated(QDBusObjectPath, QString, qulonglong, QVariantMap))) ||
               !m_bus.connect(PortalRequest::service, m_session, sessionInterface, QStringLiteral("Closed"), this,
                              SLOT(closed()))) {
        qCWarning(logPlatform) << "cannot follow the desktop's shortcuts";
    }
}

void PortalShortcut::release()
{
    if (m_session.isEmpty())
        return;
    follow(false);
    QDBusMessage close =
        QDBusMessage::createMethodCall(PortalRequest::service, m_session, sessionInterface, QStringLiteral("Close"));
    close.setAutoStartService(false);
    m_bus.send(close);
    closed();
}

void PortalShortcut::closed()
{
    m_session.clear();
    m_keyText.clear();
    if (std::exchange(m_isBound, false))
        Q_EMIT lost();
}

void PortalShortcut::activated(const QDBusObjectPath& session, const QString& id, qulonglong, const QVariantMap&)
{
    if (m_isBound && session.path() == m_session && id == shortcutID)
        Q_EMIT pressed();
}

} // namespace loom
