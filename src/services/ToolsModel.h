#pragma once

#include "services/Tool.h"

#include <QAbstractListModel>

#include <vector>

namespace loom
{

class RemoteConfig;

/// The tools less those that the store hides, in their order. Main thread; belongs to a page.
class ToolsModel final : public QAbstractListModel
{
    Q_OBJECT
    Q_PROPERTY(int count READ count NOTIFY countChanged)

public:
    enum Role { KeyRole = Qt::UserRole + 1, TitleRole, NoteRole, SymbolRole };

    explicit ToolsModel(const RemoteConfig& config, QObject* parent = nullptr);

    [[nodiscard]] int count() const { return static_cast<int>(m_shown.size()); }
    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
    [[nodiscard]] QHash<int, QByteArray> roleNames() const override;

Q_SIGNALS:
    void countChanged();

private:
    void update();

    const RemoteConfig& m_config;
    std::vector<const Tool*> m_shown;
};

} // namespace loom
