#pragma once

#include "catalog/FilterSelection.h"

#include <QAbstractListModel>
#include <QHash>
#include <QVariant>

#include <memory>

namespace loom
{

class FilterValuesModel;
class MoneyFormat;

/// What a list of products can be narrowed by, as its panel and its chips show it, and what is chosen of that. Owned
/// by a ProductListing, which asks for other products when the choice changes; main thread.
class FilterModel final : public QAbstractListModel
{
    Q_OBJECT
    Q_PROPERTY(int count READ count NOTIFY changed)
    Q_PROPERTY(int selectedCount READ selectedCount NOTIFY changed)
    Q_PROPERTY(QVariantList chips READ chips NOTIFY changed)
    Q_PROPERTY(QString currency READ currency NOTIFY changed)
    Q_PROPERTY(QString priceMin READ priceMin NOTIFY changed)
    Q_PROPERTY(QString priceMax READ priceMax NOTIFY changed)

public:
    enum Role { FilterIDRole = Qt::UserRole + 1, LabelRole, IsPriceRole, ValuesRole, LowestRole, HighestRole };
    Q_ENUM(Role)

    explicit FilterModel(const MoneyFormat& money, QObject* parent = nullptr);
    ~FilterModel() override;

    [[nodiscard]] int count() const { return static_cast<int>(m_groups.size()); }
    [[nodiscard]] const FilterSelection& selection() const { return m_selection; }
    [[nodiscard]] int selectedCount() const { return m_selection.count(); }
    /// As the latest answer gave them, and the chosen values it gave no longer.
    [[nodiscard]] const std::vector<CollectionFilter>& filters() const { return m_filters; }
    [[nodiscard]] QJsonArray inputs() const { return loom::inputs(m_filters, m_selection); }
    /// How many products each value has, by its id.
    [[nodiscard]] QHash<QString, qint64> liveCounts() const;
    /// What is chosen, each as {label, filterID, valueID}; the price has no ids.
    [[nodiscard]] QVariantList chips() const;
    /// Of the prices shown; empty while none are.
    [[nodiscard]] QString currency() const { return m_currency; }
    [[nodiscard]] QString priceMin() const;
    [[nodiscard]] QString priceMax() const;

    /// Takes the filters of an answer; an empty `currency` leaves the former one.
    void update(std::vector<CollectionFilter> offered, const QString& currency);

    /// Chooses a value, or takes the choice back. What is neither offered nor chosen is ignored.
    Q_INVOKABLE void toggle(const QString& filterID, const QString& valueID);
    void setPrice(std::optional<double> min, std::optional<double> max);
    /// As typed; what is no number is no bound.
    Q_INVOKABLE void setPriceText(const QString& min, const QString& max);
    /// Takes back what a chip stands for.
    Q_INVOKABLE void removeChip(const QString& filterID, const QString& valueID);
    Q_INVOKABLE void clear();

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
    [[nodiscard]] QHash<int, QByteArray> roleNames() const override;

Q_SIGNALS:
    void changed();
    void selectionChanged();

private:
    struct Group {
        CollectionFilter filter;
        std::unique_ptr<FilterValuesModel> values;
    };

    [[nodiscard]] QString priceText(double amount) const;
    [[nodiscard]] QString priceChip() const;
    void select(FilterSelection selection);
    void showGroups();

    const MoneyFormat& m_money;
    FilterSelection m_selection;
    std::vector<CollectionFilter> m_filters;
    std::vector<Group> m_groups; ///< those with something to choose
    QString m_currency;
};

} // namespace loom
