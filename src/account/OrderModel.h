#pragma once

#include "account/OrdersStore.h"

#include <QVariantList>

namespace loom
{

class DateFormat;
class MoneyFormat;

/// One order of the customer, as its page shows it. Main thread.
class OrderModel final : public QObject
{
    Q_OBJECT
    Q_PROPERTY(QString id READ id CONSTANT)
    Q_PROPERTY(loom::OrderModel::Phase phase READ phase NOTIFY phaseChanged)
    Q_PROPERTY(QString name READ name NOTIFY orderChanged)
    Q_PROPERTY(QString date READ date NOTIFY orderChanged)
    Q_PROPERTY(QString status READ status NOTIFY orderChanged)
    Q_PROPERTY(QString tone READ tone NOTIFY orderChanged)
    Q_PROPERTY(QStringList steps READ steps NOTIFY orderChanged)
    Q_PROPERTY(int step READ step NOTIFY orderChanged)
    Q_PROPERTY(QVariantList lines READ lines NOTIFY orderChanged)
    Q_PROPERTY(QVariantList packages READ packages NOTIFY orderChanged)
    Q_PROPERTY(QVariantList refunds READ refunds NOTIFY orderChanged)
    Q_PROPERTY(QVariantList sums READ sums NOTIFY orderChanged)
    Q_PROPERTY(QString total READ total NOTIFY orderChanged)
    Q_PROPERTY(QString address READ address NOTIFY orderChanged)
    Q_PROPERTY(bool canReturn READ canReturn NOTIFY orderChanged)

public:
    enum class Phase {
        Waiting,
        NeedsAccount,
        Found,
        Missing, ///< the customer has no such order
        Failed,
    };
    Q_ENUM(Phase)

    OrderModel(QString id, OrdersStore& store, const MoneyFormat& money, const DateFormat& dates,
               QObject* parent = nullptr);

    [[nodiscard]] const QString& id() const { return m_id; }
    [[nodiscard]] Phase phase() const;
    [[nodiscard]] const QString& name() const { return m_order.name; }
    [[nodiscard]] QString date() const;
    [[nodiscard]] QString status() const;
    [[nodiscard]] QString tone() const;
    /// Where an order passes on its way; none for one that goes no way.
    [[nodiscard]] QStringList steps() const;
    /// The one it has come to; -1 where there are none.
    [[nodiscard]] int step() const;
    /// As describe() tells of a line, a package and a refund each.
    [[nodiscard]] QVariantList lines() const;
    [[nodiscard]] QVariantList packages() const;
    [[nodiscard]] QVariantList refunds() const;
    /// {"name", "amount"} each; the total stands by itself.
    [[nodiscard]] QVariantList sums() const;
    [[nodiscard]] QString total() const;
    /// In lines; empty when it is not known.
    [[nodiscard]] QString address() const;
    [[nodiscard]] bool canReturn() const { return m_order.canReturn; }

Q_SIGNALS:
    void phaseChanged();
    void orderChanged();

private:
    void follow();

    QString m_id;
    OrdersStore& m_store;
    const MoneyFormat& m_money;
    const DateFormat& m_dates;
    Order m_order;                 ///< without an id until it is known
    std::vector<Refund> m_refunds; ///< of this order
};

} // namespace loom
