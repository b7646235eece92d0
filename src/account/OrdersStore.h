#pragma once

#include "account/AccountContent.h"
#include "account/OrdersAPI.h"

#include <QDateTime>
#include <QSet>

namespace loom
{

class Clock;
class DataFolder;
class WidgetClient;

/// The customer's orders and refunds, the newest first, and which of them the shopper has hidden. After an order was
/// placed it asks again for a while, until the order is there. One per process; main thread.
class OrdersStore final : public loom::AccountContent // in full, as QML knows it
{
    Q_OBJECT
    Q_PROPERTY(bool isAwaitingOrder READ isAwaitingOrder NOTIFY awaitingChanged)
    Q_PROPERTY(QString hiddenName READ hiddenName NOTIFY hiddenChanged)

public:
    OrdersStore(AuthStore& auth, Announcements& announcements, WidgetClient& widget, DataFolder& folder, Clock& clock,
                QObject* parent = nullptr);

    [[nodiscard]] OrdersAPI& api() { return m_api; }
    [[nodiscard]] const std::vector<Order>& orders() const { return m_answer.orders; }
    [[nodiscard]] const std::vector<Refund>& refunds() const { return m_answer.refunds; }
    /// Null when there is none of that id.
    [[nodiscard]] const Order* order(const QString& id) const;
    /// An order was placed a moment ago and is not among them yet.
    [[nodiscard]] bool isAwaitingOrder() const { return m_awaiting.isRunning(); }

    [[nodiscard]] bool isHidden(const QString& id) const { return m_hidden.contains(id); }
    /// The order that was hidden a moment ago, which can be undone; empty when there is none.
    [[nodiscard]] QString hiddenName() const;
    Q_INVOKABLE void hide(const QString& id);
    Q_INVOKABLE void unhide(const QString& id);
    Q_INVOKABLE void undoHiding() { unhide(QString(m_justHidden)); } // it changes on the way
    Q_INVOKABLE void forgetHiding();

Q_SIGNALS:
    /// The orders or the refunds.
    void ordersChanged();
    void hiddenChanged();
    void awaitingChanged();

protected:
    [[nodiscard]] QCoro::Task<ApiResult<void>> fetch(std::stop_token stop) override;
    [[nodiscard]] bool restore() override;
    void clear() override;

private:
    void awaitOrder();
    [[nodiscard]] QCoro::Task<> askUntilItIsThere();
    void take(OrdersAnswer answer);
    void setHidden(QStringList hidden);
    void saveHidden();

    OrdersAPI m_api;
    DataFolder& m_folder;
    Clock& m_clock;
    OrdersAnswer m_answer;
    QStringList m_hidden; ///< ids, the latest last
    QString m_justHidden;
    QSet<QString> m_known; ///< the orders there were when another one was placed,
    QDateTime m_newSince;  ///< or where that was not known, when the other one was placed at the earliest
    Work m_awaiting;
};

} // namespace loom
