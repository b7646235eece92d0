#pragma once

#include "navigation/SidebarItem.h"

#include <QAbstractListModel>
#include <QtQml/qqmlregistration.h>

namespace loom
{

/// The destinations of the sidebar with the headings and lines between them, in order.
class SidebarModel : public QAbstractListModel
{
    Q_OBJECT
    QML_ELEMENT

public:
    enum Role { TitleRole = Qt::UserRole + 1, SymbolRole, HeadingRole, LineRole, RawValueRole };

    using QAbstractListModel::QAbstractListModel;

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
    [[nodiscard]] QHash<int, QByteArray> roleNames() const override;
};

} // namespace loom
