#pragma once

#include "account/OrdersStore.h"

#include <QAbstractListModel>

namespace loom
{

class DateFormat;
class MoneyFormat;

/// The orders of a page, by where they are: under "Returns & refunds" a row for each refund, else one for each order.
/// Rows that stay are never taken away. Main thread.
class OrdersModel final : public QAbstractListModel
{
    Q_OBJECT
    Q_PROPERTY(int tab READ tab WRITE setTab NOTIFY tabChanged)
    Q_PROPERTY(bool showsHidden READ showsHidden WRITE setShowsHidden NOTIFY tabChanged)
    Q_PROPERTY(int count READ count NOTIFY rowsChanged)
    Q_PROPERTY(int hiddenCount READ hiddenCount NOTIFY rowsChanged)
    Q_PROPERTY(bool isEverythingEmpty READ isEverythingEmpty NOTIFY rowsChanged)

public:
    enum Tab { All, OnTheWay, Delivered, Returns };
    Q_ENUM(Tab)
    enum Role {
        OrderIdRole = Qt::UserRole + 1,
        NameRole,
        SummaryRole,
        DateRole,
        StatusRole,
        ToneRole,
        AmountRole,
        PiecesRole,
        PicturesRole,
        PackagesRole,
        RefundRole,
        HiddenRole
    };
    Q_ENUM(Role)

    /// `tab` as a route names it: "onTheWay", "delivered" or "returns"; any other is all of them.
    OrdersModel(const QString& tab, OrdersStore& store, const MoneyFormat& money, const DateFormat& dates,
                QObject* parent = nullptr);

    [[nodiscard]] int tab() const { return m_tab; }
    void setTab(int tab);
    /// Whether hidden orders stand among the others.
    [[nodiscard]] bool showsHidden() const { return m_showsHidden; }
    void setShowsHidden(bool shows);
    [[nodiscard]] int count() const { return static_cast<int>(m_rows.size()); }
    /// Of the orders of this tab.
    [[nodiscard]] int hiddenCount() const { return m_hiddenCount; }
    /// The customer has neither ordered nor sent anything back.
    [[nodiscard]] bool isEverythingEmpty() const;

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
    [[nodiscard]] QHash<int, QByteArray> roleNames() const override;

Q_SIGNALS:
    void tabChanged();
    void rowsChanged();

private:
    struct Row {
        std::optional<Refund> refund;
        std::optional<Order> order; ///< that of a refund may not be known
        bool isHidden = false;

        [[nodiscard]] QString key() const { return refund ? u'r' + refund->id : u'o' + order->id; }
        bool operator==(const Row&) const = default;
    };

    [[nodiscard]] std::vector<Row> wantedRows(int* hiddenCount) const;
    [[nodiscard]] QVariant refundData(const Row& row, int role) const;
    [[nodiscard]] QVariant orderData(const Order& order, int role) const;
    void follow();

    OrdersStore& m_store;
    const MoneyFormat& m_money;
    const DateFormat& m_dates;
    int m_tab;
    bool m_showsHidden = false;
    std::vector<Row> m_rows;
    int m_hiddenCount = 0;
};

} // namespace loom
