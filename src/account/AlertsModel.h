#pragma once

#include "account/Alert.h"

#include <QAbstractListModel>

namespace loom
{

class MoneyFormat;

/// The alerts as rows of a page. Rows that stay are never taken away. Main thread.
class AlertsModel final : public QAbstractListModel
{
    Q_OBJECT
    Q_PROPERTY(int count READ count NOTIFY countChanged)

public:
    enum Role {
        IsRestockRole = Qt::UserRole + 1,
        HandleRole,
        TitleRole,
        DesignerRole,
        SizeRole,
        PictureRole,
        PriceRole,     ///< now, as far as it is known
        PriceThenRole, ///< when the alert was set, where it was another
        IsLowerRole,
        IsMetRole,
    };
    Q_ENUM(Role)

    explicit AlertsModel(const MoneyFormat& money, QObject* parent = nullptr);

    [[nodiscard]] int count() const { return static_cast<int>(m_alerts.size()); }
    [[nodiscard]] const std::vector<Alert>& alerts() const { return m_alerts; }
    void show(const std::vector<Alert>& alerts);

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
    [[nodiscard]] QHash<int, QByteArray> roleNames() const override;

Q_SIGNALS:
    void countChanged();

private:
    const MoneyFormat& m_money;
    std::vector<Alert> m_alerts;
};

} // namespace loom
