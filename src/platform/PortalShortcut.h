#pragma once

#include <QDBusConnection>
#include <QDBusObjectPath>
#include <QObject>
#include <QVariantMap>
#include <qcoro/qcorotask.h>

#include <stop_token>

namespace loom
{

/// One key by the portal of global shortcuts (org.freedesktop.portal.GlobalShortcuts): the desktop asks the shopper,
/// who may choose another key. Main thread.
class PortalShortcut final : public QObject
{
    Q_OBJECT

public:
    enum class Outcome { Bound, Refused, Absent };

    /// `preferred`: as portals write it, "CTRL+ALT+m".
    PortalShortcut(QString preferred, QString preferredText);

    /// Absent where the desktop has no such portal.
    [[nodiscard]] QCoro::Task<Outcome> bind(QString purpose, std::stop_token stop);
    /// Gives the key back, or takes the question back.
    void release();
    [[nodiscard]] bool isBound() const { return m_isBound; }
    /// The key in the words of the desktop.
    [[nodiscard]] QString keyText() const { return m_keyText; }

Q_SIGNALS:
    void pressed();
    /// The desktop has taken the key away.
    void lost();

private:
    Q_SLOT void activated(const QDBusObjectPath& session, const QString& id, qulonglong time,
                          const QVariantMap& options);
    Q_SLOT void closed();
    void follow(bool isFollowing);

    QDBusConnection m_bus;
    QString m_preferred;
    QString m_preferredText;
    QString m_session; ///< empty while there is none
    int m_sessions = 0;
    bool m_isBound = false;
    QString m_keyText;
};

} // namespace loom
