#include "account/OrderModel.h"

#include "account/OrderWords.h"
#include "catalog/DateFormat.h"
#include "catalog/MoneyFormat.h"

#include <QCoreApplication>

#include <array>

namespace loom
{

namespace
{

constexpr std::array way{OrderStatus::Confirmed, OrderStatus::Packed, OrderStatus::Shipped, OrderStatus::Delivered};

} // namespace

OrderModel::OrderModel(QString id, OrdersStore& store, const MoneyFormat& money, const DateFormat& dates,
                       QObject* parent)
    : QObject(parent)
    , m_id(std::move(id))
    , m_store(store)
    , m_money(money)
    , m_dates(dates)
{
    connect(&store, &OrdersStore::ordersChanged, this, &OrderModel::follow);
    connect(&store, &OrdersStore::phaseChanged, this, &OrderModel::phaseChanged);
    follow();
}

void OrderModel::follow()
{
    const Order* const found = m_store.order(m_id);
    Order order = found ? *found : Order();
    std::vector<Refund> refunds;
    std::ranges::copy_if(m_store.refunds(), std::back_inserter(refunds),
                         [&order](const Refund& refund) { return !order.id.isEmpty() && refund.orderId == order.id; });
    if (m_order == order && m_refunds == refunds)
        return;
    m_order = std::move(order);
    m_refunds = std::move(refunds);
    Q_EMIT orderChanged();
    Q_EMIT phaseChanged();
}

OrderModel::Phase OrderModel::phase() const
{
    if (!m_order.id.isEmpty())
        return Phase::Found;
    switch (m_store.phase()) {
    case AccountContent::Phase::NeedsAccount:
        return Phase::NeedsAccount;
    case AccountContent::Phase::Failed:
        return Phase::Failed;
    case AccountContent::Phase::Ready:
        // What was saved may be older than the order.
        if (m_store.isLoading())
            return Phase::Waiting;
        return m_store.errorText().isEmpty() ? Phase::Missing : Phase::Failed;
    case AccountContent::Phase::Waiting:
        break;
    }
    return Phase::Waiting;
}

QString OrderModel::date() const
{
    return m_dates.day(m_order.placedAt);
}

QString OrderModel::status() const
{
    return statusText(m_order.status);
}

QString OrderModel::tone() const
{
    return toneOf(m_order.status);
}

int OrderModel::step() const
{
    const auto found = std::ranges::find(way, m_order.status);
    return found == way.end() ? -1 : static_cast<int>(found - way.begin());
}

QStringList OrderModel::steps() const
{
    QStringList texts;
    if (step() >= 0) {
        for (const OrderStatus status : way)
            texts.append(statusText(status));
    }
    return texts;
}

QVariantList OrderModel::lines() const
{
    QVariantList list;
    for (const OrderLine& line : m_order.lines)
        list.append(describe(line, m_money));
    return list;
}

QVariantList OrderModel::packages() const
{
    QVariantList list;
    for (const Package& package : m_order.packages)
        list.append(describe(package, m_dates));
    return list;
}

QVariantList OrderModel::refunds() const
{
    QVariantList list;
    for (const Refund& refund : m_refunds)
        list.append(describe(refund, m_dates, m_money));
    return list;
}

QVariantList OrderModel::sums() const
{
    QVariantList list;
    const auto add = [&list](const QString& name, const QString& amount) {
        list.append(QVariantMap{{QStringLiteral("name"), name}, {QStringLiteral("amount"), amount}});
    };
    if (m_order.subtotal)
        add(QCoreApplication::translate("Loomstreet", "Subtotal"), m_money.text(*m_order.subtotal));
    if (m_order.discount && m_order.discount->amount > 0) {
        Money discount = *m_order.discount;
        discount.amount = -discount.amount;
        add(QCoreApplication::translate("Loomstreet", "Discount"), m_money.text(discount));
    }
    if (m_order.shipping) {
        add(QCoreApplication::translate("Loomstreet", "Shipping"),
            m_order.shipping->amount > 0 ? m_money.text(*m_order.shipping)
                                         : QCoreApplication::translate("Loomstreet", "Free"));
    }
    if (m_order.tax && m_order.tax->amount > 0)
        add(QCoreApplication::translate("Loomstreet", "Taxes"), m_money.text(*m_order.tax));
    return list;
}

QString OrderModel::address() const
{
    const QStringList name = m_order.addressee.isEmpty() ? QStringList() : QStringList(m_order.addressee);
    return (name + m_order.addressLines).join(u'\n');
}

QString OrderModel::total() const
{
    return m_money.text(m_order.total);
}

} // namespace loom
