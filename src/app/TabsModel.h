#pragma once

#include "app/Router.h"

#include <QAbstractListModel>

#include <memory>

namespace loom
{

/// The tabs of a window in their order, one row each.
class TabsModel : public QAbstractListModel
{
    Q_OBJECT
    Q_PROPERTY(int count READ count NOTIFY countChanged)

public:
    enum Role { RouterRole = Qt::UserRole + 1 };

    using QAbstractListModel::QAbstractListModel;

    [[nodiscard]] int count() const { return static_cast<int>(m_tabs.size()); }
    [[nodiscard]] Router* at(int index) const;
    [[nodiscard]] int indexOf(const QUuid& id) const;
    void insert(int index, std::unique_ptr<Router> tab);
    void remove(int index);
    void move(int from, int to);

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
    [[nodiscard]] QHash<int, QByteArray> roleNames() const override;

Q_SIGNALS:
    void countChanged();

private:
    std::vector<std::unique_ptr<Router>> m_tabs;
};

} // namespace loom
