#pragma once

#include "net/Work.h"
#include "notify/AppNotification.h"

#include <QMap>
#include <QObject>
#include <QPointer>
#include <QVariant>
#include <qcoro/qcorotask.h>

#include <chrono>
#include <deque>
#include <functional>
#include <optional>

namespace loom
{

class Clock;

/// The banner at the top of the front window, one at a time, and those that wait for their turn. One per process; main
/// thread.
class NotificationBannerCenter final : public QObject
{
    Q_OBJECT
    Q_PROPERTY(QVariant current READ currentVariant NOTIFY currentChanged)
    Q_PROPERTY(int windowNumber READ windowNumber NOTIFY currentChanged)
    Q_PROPERTY(int waitingCount READ waitingCount NOTIFY queueChanged)

public:
    static constexpr std::chrono::seconds displayTime{6};
    /// Of more than so many that wait the oldest are dropped.
    static constexpr std::size_t mostWaiting = 50;
    static constexpr int noWindow = -1;

    explicit NotificationBannerCenter(Clock& clock, QObject* parent = nullptr);

    /// A window that can show banners, until it goes away or is detached. Its number.
    Q_INVOKABLE int attach(QObject* host);
    Q_INVOKABLE void detach(QObject* host);
    /// The window of this host came to the front.
    Q_INVOKABLE void setFront(QObject* host);
    /// That of a window; noWindow when it is not attached.
    [[nodiscard]] Q_INVOKABLE int numberOf(QObject* host) const;
    [[nodiscard]] QObject* hostOf(int number) const { return m_windows.value(number); }

    /// One that is on screen or waiting already, by its id, is only brought up to date.
    void enqueue(const AppNotification& notification);
    /// The shopper has seen it elsewhere.
    void withdraw(const QString& id);
    /// Drops what belongs to any other account.
    void keepOnly(const QString& accountID);

    [[nodiscard]] const std::optional<AppNotification>& current() const { return m_current; }
    /// The window that shows the current one; noWindow when there is none.
    [[nodiscard]] int windowNumber() const { return m_windowNumber; }
    [[nodiscard]] int waitingCount() const { return static_cast<int>(m_queue.size()); }

    /// The shopper follows the current one.
    Q_INVOKABLE void open();
    Q_INVOKABLE void dismiss();
    /// The pointer or the focus is on the current one: it stays until it is released, and then for its whole time. Ends
    /// with the banner: who is over the next one says so again.
    Q_INVOKABLE void hold();
    Q_INVOKABLE void release();

Q_SIGNALS:
    void currentChanged();
    void queueChanged();
    /// In this window.
    void opened(const loom::AppNotification& notification, int windowNumber);

private:
    [[nodiscard]] QVariant currentVariant() const;
    void forget(int number);
    void drop(const std::function<bool(const AppNotification&)>& isDropped);
    void hide();
    void showNext();
    [[nodiscard]] QCoro::Task<> dismissLater();

    Clock& m_clock;
    std::optional<AppNotification> m_current;
    int m_windowNumber = noWindow;
    QMap<int, QPointer<QObject>> m_windows;
    QList<int> m_order; ///< their numbers, the one in front first
    int m_attached = 0;
    std::deque<AppNotification> m_queue;
    Work m_dismissal;
};

} // namespace loom
