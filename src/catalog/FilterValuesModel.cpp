#include "catalog/FilterValuesModel.h"

#include "base/FoldedText.h"
#include "catalog/DisplayText.h"
#include "catalog/RowMerge.h"

namespace loom
{

namespace
{

constexpr qsizetype longestCompact = 5;
constexpr qsizetype longestLabel = 80;
/// A list that long is shown anew rather than row by row.
constexpr std::size_t longestMerged = 300;

QStringList idsOf(const auto& rows)
{
    QStringList ids;
    for (const auto& row : rows)
        ids.append(row.value.id);
    return ids;
}

} // namespace

void FilterValuesModel::update(const CollectionFilter& filter, const FilterSelection& selection)
{
    m_filterID = filter.id;
    m_all.clear();
    for (const CollectionFilter::Value& value : filter.values)
        m_all.push_back({.value = value, .isSelected = selection.contains(filter.id, value.id)});
    m_isCompact = std::ranges::all_of(
        m_all, [](const Row& row) { return row.value.label.simplified().size() <= longestCompact; });
    showRows();
}

void FilterValuesModel::updateSelection(const FilterSelection& selection)
{
    const auto update = [&](std::vector<Row>& rows) {
        for (Row& row : rows)
            row.isSelected = selection.contains(m_filterID, row.value.id);
    };
    update(m_all);
    update(m_rows);
    if (!m_rows.empty())
        Q_EMIT dataChanged(index(0), index(rowCount() - 1), {SelectedRole});
}

void FilterValuesModel::setExpanded(bool isExpanded)
{
    if (isExpanded == m_isExpanded)
        return;
    m_isExpanded = isExpanded;
    m_search.clear();
    showRows();
}

void FilterValuesModel::setSearch(const QString& search)
{
    if (search == m_search)
        return;
    m_search = search;
    showRows();
}

void FilterValuesModel::showRows()
{
    const QString wantedText = FoldedText::fold(m_search);
    // Also inside of a word: without the blank that words begin with.
    const auto isWanted = [part = QStringView(wantedText).mid(1)](const CollectionFilter::Value& value) {
        return part.isEmpty() || FoldedText::fold(value.label).contains(part);
    };
    const std::size_t most = m_isExpanded ? m_all.size() : m_isCompact ? firstCompactValues : firstValues;
    std::vector<Row> wanted;
    for (const Row& row : m_all) {
        if (wanted.size() < most && isWanted(row.value))
            wanted.push_back(row);
    }
    if (std::max(wanted.size(), m_rows.size()) > longestMerged) {
        beginResetModel();
        m_rows = std::move(wanted);
        endResetModel();
    } else {
        mergeRows(
            idsOf(m_rows), idsOf(wanted),
            [this](int row) {
                beginRemoveRows({}, row, row);
                m_rows.erase(m_rows.begin() + row);
                endRemoveRows();
            },
            [this](int from, int to) {
                beginMoveRows({}, from, from, {}, to);
                std::rotate(m_rows.begin() + to, m_rows.begin() + from, m_rows.begin() + from + 1);
                endMoveRows();
            },
            [&](int row, std::size_t place) {
                beginInsertRows({}, row, row);
                m_rows.insert(m_rows.begin() + row, wanted[place]);
                endInsertRows();
            });
        m_rows = std::move(wanted);
        if (!m_rows.empty())
            Q_EMIT dataChanged(index(0), index(rowCount() - 1));
    }
    Q_EMIT changed();
}

int FilterValuesModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_rows.size());
}

QVariant FilterValuesModel::data(const QModelIndex& index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid))
        return {};
    const Row& row = m_rows[static_cast<std::size_t>(index.row())];
    switch (role) {
    case ValueIDRole:
        return row.value.id;
    case LabelRole:
        return displayLine(row.value.label, longestLabel);
    case PiecesRole:
        return row.value.count;
    case SelectedRole:
        return row.isSelected;
    default:
        return {};
    }
}

QHash<int, QByteArray> FilterValuesModel::roleNames() const
{
    return {{ValueIDRole, "valueID"}, {LabelRole, "label"}, {PiecesRole, "pieces"}, {SelectedRole, "selected"}};
}

} // namespace loom
