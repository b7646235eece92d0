#pragma once

#include <QObject>

namespace loom
{

class LauncherBadge;
class Preferences;

/// How much the account has not read yet: at the application's icon, as far as the shopper wants it there, and beside
/// the section of the window. One per process; main thread.
class NotificationBadge final : public QObject
{
    Q_OBJECT
    Q_PROPERTY(QString text READ text NOTIFY changed)
    Q_PROPERTY(int count READ count NOTIFY changed)

public:
    NotificationBadge(Preferences& preferences, LauncherBadge& launcher, QObject* parent = nullptr);

    /// Nothing for 0, the number up to 99, "99+" above.
    [[nodiscard]] static QString textFor(int count);

    /// Of the account's list; 0 when nobody is signed in.
    void setUnreadCount(int count);
    [[nodiscard]] int count() const { return m_count; }
    [[nodiscard]] QString text() const { return textFor(m_count); }

Q_SIGNALS:
    void changed();

private:
    void follow();

    Preferences& m_preferences;
    LauncherBadge& m_launcher;
    int m_count = 0;
    int m_shown = 0; ///< at the icon
};

} // namespace loom
