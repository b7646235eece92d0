#pragma once

#include "catalog/FilterSelection.h"

#include <QAbstractListModel>

namespace loom
{

/// The values of one filter as a panel lists them: the first few until all are asked for, and of all those that a
/// shopper looks for. Owned by a FilterModel; main thread.
class FilterValuesModel final : public QAbstractListModel
{
    Q_OBJECT
    Q_PROPERTY(int total READ total NOTIFY changed)
    Q_PROPERTY(int hiddenCount READ hiddenCount NOTIFY changed)
    Q_PROPERTY(bool isCompact READ isCompact NOTIFY changed)
    Q_PROPERTY(bool isExpanded READ isExpanded WRITE setExpanded NOTIFY changed)
    Q_PROPERTY(QString search READ search WRITE setSearch NOTIFY changed)

public:
    enum Role { ValueIDRole = Qt::UserRole + 1, LabelRole, PiecesRole, SelectedRole };
    Q_ENUM(Role)

    /// How many are listed before all are asked for; of compact ones there is room for more.
    static constexpr std::size_t firstValues = 8;
    static constexpr std::size_t firstCompactValues = 24;

    explicit FilterValuesModel(QObject* parent)
        : QAbstractListModel(parent)
    {
    }

    void update(const CollectionFilter& filter, const FilterSelection& selection);
    void updateSelection(const FilterSelection& selection);

    [[nodiscard]] int total() const { return static_cast<int>(m_all.size()); }
    [[nodiscard]] int hiddenCount() const { return m_isExpanded ? 0 : total() - static_cast<int>(m_rows.size()); }
    /// Values as short as sizes, of which several stand in a line.
    [[nodiscard]] bool isCompact() const { return m_isCompact; }
    [[nodiscard]] bool isExpanded() const { return m_isExpanded; }
    void setExpanded(bool isExpanded);
    [[nodiscard]] QString search() const { return m_search; }
    void setSearch(const QString& search);

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
    [[nodiscard]] QHash<int, QByteArray> roleNames() const override;

Q_SIGNALS:
    void changed();

private:
    struct Row {
        CollectionFilter::Value value;
        bool isSelected = false;
    };

    void showRows();

    QString m_filterID;
    std::vector<Row> m_all;
    std::vector<Row> m_rows; ///< those that are listed
    bool m_isCompact = false;
    bool m_isExpanded = false;
    QString m_search;
};

} // namespace loom
