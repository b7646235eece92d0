#include "notify/NotificationBannerCenter.h"

#include "base/Clock.h"
#include "notify/NoticeText.h"

#include <algorithm>

namespace loom
{

NotificationBannerCenter::NotificationBannerCenter(Clock& clock, QObject* parent)
    : QObject(parent)
    , m_clock(clock)
{
}

int NotificationBannerCenter::attach(QObject* host)
{
    if (const int known = numberOf(host); known != noWindow)
        return known;
    const int number = ++m_attached;
    m_windows.insert(number, host);
    m_order.prepend(number);
    connect(host, &QObject::destroyed, this, [this, number] { forget(number); });
    showNext();
    return number;
}

void NotificationBannerCenter::detach(QObject* host)
{
    const int number = numberOf(host);
    if (number == noWindow)
        return;
    disconnect(host, &QObject::destroyed, this, nullptr);
    forget(number);
}

void NotificationBannerCenter::setFront(QObject* host)
{
    const int number = numberOf(host);
    if (number != noWindow)
        m_order.move(m_order.indexOf(number), 0);
}

int NotificationBannerCenter::numberOf(QObject* host) const
{
    return m_windows.key(host, noWindow);
}

void NotificationBannerCenter::forget(int number)
{
    m_windows.remove(number);
    m_order.removeAll(number);
    if (m_windowNumber != number)
        return;
    if (m_order.isEmpty()) {
        m_queue.push_front(*m_current);
        hide();
    } else {
        m_windowNumber = m_order.first();
        Q_EMIT currentChanged();
        static_cast<void>(dismissLater());
    }
}

void NotificationBannerCenter::enqueue(const AppNotification& notification)
{
    if (m_current && m_current->id == notification.id) {
        m_current = notification;
        Q_EMIT currentChanged();
        return;
    }
    const auto same = std::ranges::find(m_queue, notification.id, &AppNotification::id);
    if (same != m_queue.end())
        *same = notification;
    else
        m_queue.push_back(notification);
    if (m_queue.size() > mostWaiting)
        m_queue.pop_front();
    Q_EMIT queueChanged();
    showNext();
}

void NotificationBannerCenter::withdraw(const QString& id)
{
    drop([&id](const AppNotification& notification) { return notification.id == id; });
}

void NotificationBannerCenter::keepOnly(const QString& accountID)
{
    drop([&accountID](const AppNotification& notification) {
        return isPersonal(notification) && notification.accountID != accountID;
    });
}

void NotificationBannerCenter::drop(const std::function<bool(const AppNotification&)>& isDropped)
{
    if (std::erase_if(m_queue, isDropped) > 0)
        Q_EMIT queueChanged();
    if (m_current && isDropped(*m_current))
        dismiss();
}

QVariant NotificationBannerCenter::currentVariant() const
{
    return m_current ? QVariant::fromValue(*m_current) : QVariant();
}

void NotificationBannerCenter::open()
{
    if (!m_current)
        return;
    const AppNotification notification = *m_current;
    const int number = m_windowNumber;
    hide();
    Q_EMIT opened(notification, number);
    showNext();
}

void NotificationBannerCenter::dismiss()
{
    if (!m_current)
        return;
    hide();
    showNext();
}

void NotificationBannerCenter::hold()
{
    m_dismissal.stop();
}

void NotificationBannerCenter::release()
{
    if (m_current && !m_dismissal.isRunning())
        static_cast<void>(dismissLater());
}

void NotificationBannerCenter::hide()
{
    m_dismissal.stop();
    m_current.reset();
    m_windowNumber = noWindow;
    Q_EMIT currentChanged();
}

void NotificationBannerCenter::showNext()
{
    if (m_current || m_queue.empty() || m_order.isEmpty())
        return;
    m_current = m_queue.front();
    m_queue.pop_front();
    m_windowNumber = m_order.first();
    static_cast<void>(dismissLater()); // before anybody is told, who may hold it
    Q_EMIT queueChanged();
    Q_EMIT currentChanged();
}

QCoro::Task<> NotificationBannerCenter::dismissLater()
{
    const Work::Run run = m_dismissal.begin();
    co_await m_clock.sleep(displayTime, run.stop());
    if (!run.isStopped())
        dismiss();
}

} // namespace loom
