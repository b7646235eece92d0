#include "catalog/FilterModel.h"

#include "catalog/DisplayText.h"
#include "catalog/FilterValuesModel.h"
#include "catalog/Money.h"
#include "catalog/MoneyFormat.h"
#include "catalog/RowMerge.h"

#include <QCoreApplication>

namespace loom
{

namespace
{

constexpr qsizetype longestLabel = 80;
/// Values that short say little without the name of their filter: "Size: M".
constexpr qsizetype longestWithName = 3;

bool isOffered(const CollectionFilter& filter)
{
    return filter.kind == CollectionFilter::Kind::PriceRange || !filter.values.empty();
}

QString chipLabel(const CollectionFilter& filter, const CollectionFilter::Value& value)
{
    QString name = displayLine(filter.label, longestLabel);
    QString text = displayLine(value.label, longestLabel);
    // "Yes" says nothing at all.
    if (filter.kind == CollectionFilter::Kind::Boolean && filter.values.size() == 1)
        return name;
    return text.size() <= longestWithName ? name + QStringLiteral(": ") + text : text;
}

std::optional<double> amountIn(QString text)
{
    bool isNumber = false;
    const double amount = text.replace(QLatin1Char(','), QLatin1Char('.')).trimmed().toDouble(&isNumber);
    return isNumber ? std::optional(amount) : std::nullopt;
}

QString plainNumber(const std::optional<double>& amount)
{
    return amount ? QString::number(*amount, 'f', QLocale::FloatingPointShortest) : QString();
}

} // namespace

FilterModel::FilterModel(const MoneyFormat& money, QObject* parent)
    : QAbstractListModel(parent)
    , m_money(money)
{
}

FilterModel::~FilterModel() = default;

QHash<QString, qint64> FilterModel::liveCounts() const
{
    QHash<QString, qint64> counts;
    for (const CollectionFilter& filter : m_filters) {
        for (const CollectionFilter::Value& value : filter.values)
            counts.insert(value.id, value.count);
    }
    return counts;
}

QVariantList FilterModel::chips() const
{
    const auto chip = [](const QString& label, const QString& filterID, const QString& valueID) {
        return QVariantMap{{QStringLiteral("label"), label},
                           {QStringLiteral("filterID"), filterID},
                           {QStringLiteral("valueID"), valueID}};
    };
    QVariantList chips;
    for (const CollectionFilter& filter : m_filters) {
        for (const CollectionFilter::Value& value : filter.values) {
            if (m_selection.contains(filter.id, value.id))
                chips.append(chip(chipLabel(filter, value), filter.id, value.id));
        }
    }
    if (m_selection.priceMin || m_selection.priceMax)
        chips.append(chip(priceChip(), {}, {}));
    return chips;
}

QString FilterModel::priceText(double amount) const
{
    return m_money.roundText({.amount = amount, .currencyCode = m_currency});
}

QString FilterModel::priceChip() const
{
    const auto& [selected, min, max] = m_selection;
    if (min && max)
        return QStringLiteral("%1 – %2").arg(priceText(*min), priceText(*max));
    if (min)
        return QCoreApplication::translate("Loomstreet", "From %1").arg(priceText(*min));
    return QCoreApplication::translate("Loomstreet", "Up to %1").arg(priceText(*max));
}

QString FilterModel::priceMin() const
{
    return plainNumber(m_selection.priceMin);
}

QString FilterModel::priceMax() const
{
    return plainNumber(m_selection.priceMax);
}

void FilterModel::update(std::vector<CollectionFilter> offered, const QString& currency)
{
    if (!currency.isEmpty())
        m_currency = currency;
    m_filters = withSelected(std::move(offered), m_filters, m_selection);
    showGroups();
    Q_EMIT changed();
}

void FilterModel::showGroups()
{
    std::vector<CollectionFilter> wanted;
    QStringList wantedIDs;
    for (const CollectionFilter& filter : m_filters) {
        if (!isOffered(filter) || wantedIDs.contains(filter.id))
            continue;
        wantedIDs.append(filter.id);
        wanted.push_back(filter);
    }
    QStringList shownIDs;
    for (const Group& group : m_groups)
        shownIDs.append(group.filter.id);
    mergeRows(
        shownIDs, wantedIDs,
        [this](int row) {
            beginRemoveRows({}, row, row);
            m_groups[static_cast<std::size_t>(row)].values.release()->deleteLater(); // still shown until then
            m_groups.erase(m_groups.begin() + row);
            endRemoveRows();
        },
        [this](int from, int to) {
            beginMoveRows({}, from, from, {}, to);
            std::rotate(m_groups.begin() + to, m_groups.begin() + from, m_groups.begin() + from + 1);
            endMoveRows();
        },
        [this](int row, std::size_t) {
            beginInsertRows({}, row, row);
            m_groups.insert(m_groups.begin() + row,
                            {.filter = {}, .values = std::make_unique<FilterValuesModel>(this)});
            endInsertRows();
        });
    for (std::size_t i = 0; i < m_groups.size(); ++i) {
        m_groups[i].values->update(wanted[i], m_selection);
        m_groups[i].filter = std::move(wanted[i]);
    }
    if (!m_groups.empty())
        Q_EMIT dataChanged(index(0), index(count() - 1));
}

void FilterModel::select(FilterSelection selection)
{
    if (selection == m_selection)
        return;
    m_selection = std::move(selection);
    for (const Group& group : m_groups)
        group.values->updateSelection(m_selection);
    Q_EMIT changed();
    Q_EMIT selectionChanged();
}

void FilterModel::toggle(const QString& filterID, const QString& valueID)
{
    const auto filter = std::ranges::find(m_filters, filterID, &CollectionFilter::id);
    const bool isKnown =
        filter != m_filters.end() &&
        std::ranges::find(filter->values, valueID, &CollectionFilter::Value::id) != filter->values.end();
    if (!isKnown && !m_selection.contains(filterID, valueID))
        return;
    FilterSelection selection = m_selection;
    selection.toggle(filterID, valueID);
    select(std::move(selection));
}

void FilterModel::setPrice(std::optional<double> min, std::optional<double> max)
{
    FilterSelection selection = m_selection;
    selection.setPrice(min, max);
    select(std::move(selection));
}

void FilterModel::setPriceText(const QString& min, const QString& max)
{
    setPrice(amountIn(min), amountIn(max));
}

void FilterModel::removeChip(const QString& filterID, const QString& valueID)
{
    if (filterID.isEmpty())
        setPrice({}, {});
    else if (m_selection.contains(filterID, valueID))
        toggle(filterID, valueID);
}

void FilterModel::clear()
{
    select({});
}

int FilterModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : count();
}

QVariant FilterModel::data(const QModelIndex& index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid))
        return {};
    const auto& [filter, values] = m_groups[static_cast<std::size_t>(index.row())];
    switch (role) {
    case FilterIDRole:
        return filter.id;
    case LabelRole:
        return displayLine(filter.label, longestLabel);
    case IsPriceRole:
        return filter.kind == CollectionFilter::Kind::PriceRange;
    case ValuesRole:
        return QVariant::fromValue(values.get());
    case LowestRole:
        return plainNumber(priceBounds(filter).min);
    case HighestRole:
        return plainNumber(priceBounds(filter).max);
    default:
        return {};
    }
}

QHash<int, QByteArray> FilterModel::roleNames() const
{
    return {{FilterIDRole, "filterID"}, {LabelRole, "label"},   {IsPriceRole, "isPrice"},
            {ValuesRole, "values"},     {LowestRole, "lowest"}, {HighestRole, "highest"}};
}

} // namespace loom
