#pragma once

#include <QDBusConnection>
#include <QDBusMessage>
#include <QObject>
#include <QPromise>
#include <QVariantMap>
#include <qcoro/qcorotask.h>

#include <optional>
#include <stop_token>

namespace loom
{

/// What became of a question to the desktop's portal (org.freedesktop.portal.Desktop).
struct PortalAnswer {
    bool isAsked = false;              ///< there is a portal, and it understood
    std::optional<QVariantMap> result; ///< nothing where the shopper refused
};

/// One question to the portal, which answers by a signal when the shopper has decided. Main thread.
class PortalRequest final : public QObject
{
    Q_OBJECT

public:
    /// Where desktops keep their portals.
    inline static const QString service = QStringLiteral("org.freedesktop.portal.Desktop");
    inline static const QString root = QStringLiteral("/org/freedesktop/portal/desktop");

    /// `call`: all but its options, which come last. `token`: of letters, and of no other question that is open.
    [[nodiscard]] static QCoro::Task<PortalAnswer> ask(QDBusConnection bus, QDBusMessage call, QVariantMap options,
                                                       QString token, std::stop_token stop);
    [[nodiscard]] static QDBusMessage call(const QString& interface, const char* method);
    /// Where the portal keeps what this connection calls `token`. `kind`: "request" or "session".
    [[nodiscard]] static QString path(const QDBusConnection& bus, const char* kind, const QString& token);

private:
    PortalRequest() { m_promise.start(); }

    Q_SLOT void responded(uint code, const QVariantMap& results);
    void finish(PortalAnswer answer);

    QPromise<PortalAnswer> m_promise;
    bool m_isFinished = false;
};

} // namespace loom
