#include "commerce/PieceListModel.h"

#include "base/Clock.h"
#include "catalog/MoneyFormat.h"

#include <QCoreApplication>

namespace loom
{

namespace
{

/// So many rows move by themselves.
constexpr qsizetype fewMoves = 16;

const QString& handleOf(const PieceRow& row)
{
    return row.item.handle;
}

/// The most numbers of a list that rise from each to the next, whatever stands between them.
QSet<std::ptrdiff_t> longestRise(const std::vector<std::ptrdiff_t>& numbers)
{
    std::vector<std::size_t> ends; // of the rises of each length, where the one with the lowest end ends
    std::vector<std::optional<std::size_t>> before(numbers.size());
    for (std::size_t i = 0; i < numbers.size(); ++i) {
        const auto longer =
            std::ranges::lower_bound(ends, numbers[i], {}, [&numbers](std::size_t place) { return numbers[place]; });
        if (longer != ends.begin())
            before[i] = *std::prev(longer);
        if (longer == ends.end())
            ends.push_back(i);
        else
            *longer = i;
    }
    QSet<std::ptrdiff_t> rise;
    for (auto i = ends.empty() ? std::nullopt : std::optional(ends.back()); i; i = before[*i])
        rise.insert(numbers[*i]);
    return rise;
}

} // namespace

PieceListModel::PieceListModel(const MoneyFormat& money, const Clock& clock, QObject* parent)
    : QAbstractListModel(parent)
    , m_money(money)
    , m_clock(clock)
{
}

/// Those that go out of many places go each by itself, so that the others close up.
template <typename IsWanted>
void PieceListModel::takeOut(std::ptrdiff_t start, std::ptrdiff_t end, IsWanted isWanted)
{
    while (end > start) {
        const bool isTaken = isWanted(m_rows[static_cast<std::size_t>(end - 1)]);
        auto from = end - 1;
        while (from > start && isWanted(m_rows[static_cast<std::size_t>(from - 1)]) == isTaken)
            --from;
        if (isTaken) {
            beginRemoveRows({}, static_cast<int>(from), static_cast<int>(end - 1));
            m_rows.erase(m_rows.begin() + from, m_rows.begin() + end);
            endRemoveRows();
        }
        end = from;
    }
}

void PieceListModel::show(std::vector<PieceRow> rows)
{
    // What is the same at the start and at the end stays; between them rows went or came.
    const auto same = [](const PieceRow& a, const PieceRow& b) {
        return handleOf(a) == handleOf(b);
    };
    const auto [firstOld, firstNew] = std::ranges::mismatch(m_rows, rows, same);
    const auto start = firstOld - m_rows.begin();
    std::ptrdiff_t behind = 0;
    const auto most = std::min(m_rows.end() - firstOld, rows.end() - firstNew);
    while (behind < most && same(*(m_rows.end() - 1 - behind), *(rows.end() - 1 - behind)))
        ++behind;
    const bool isCountNew = rows.size() != m_rows.size();

    const auto goneUntil = static_cast<std::ptrdiff_t>(m_rows.size()) - behind;
    const auto comeUntil = static_cast<std::ptrdiff_t>(rows.size()) - behind;
    QHash<QString, std::ptrdiff_t> places;
    for (auto i = start; i < comeUntil; ++i)
        places.insert(handleOf(rows[static_cast<std::size_t>(i)]), i);
    takeOut(start, goneUntil, [&places](const PieceRow& row) { return !places.contains(handleOf(row)); });
    // What stands in another order comes anew: only that, unless it is much of the list.
    const auto left = static_cast<std::ptrdiff_t>(m_rows.size()) - behind;
    std::vector<std::ptrdiff_t> order;
    for (auto i = start; i < left; ++i)
        order.push_back(places.value(handleOf(m_rows[static_cast<std::size_t>(i)])));
    const QSet<std::ptrdiff_t> staying = longestRise(order);
    if (const auto moving = left - start - staying.size(); moving > 0) {
        takeOut(start, left, [&](const PieceRow& row) {
            return moving > fewMoves || !staying.contains(places.value(handleOf(row)));
        });
    }
    for (auto i = start; i < comeUntil;) {
        const auto place = m_rows.begin() + i;
        const bool isThere =
            i < static_cast<std::ptrdiff_t>(m_rows.size()) - behind && same(*place, rows[static_cast<std::size_t>(i)]);
        if (isThere) {
            ++i;
            continue;
        }
        const auto isOld = [&](const PieceRow& row) {
            return i < static_cast<std::ptrdiff_t>(m_rows.size()) - behind && same(*(m_rows.begin() + i), row);
        };
        auto until = i + 1;
        while (until < comeUntil && !isOld(rows[static_cast<std::size_t>(until)]))
            ++until;
        beginInsertRows({}, static_cast<int>(i), static_cast<int>(until - 1));
        m_rows.insert(m_rows.begin() + i, rows.begin() + i, rows.begin() + until);
        endInsertRows();
        i = until;
    }
    for (std::size_t i = 0; i < rows.size(); ++i) {
        if (m_rows[i] == rows[i])
            continue;
        m_rows[i] = std::move(rows[i]);
        const QModelIndex changed = index(static_cast<int>(i));
        Q_EMIT dataChanged(changed, changed);
    }
    if (isCountNew)
        Q_EMIT countChanged();
}

int PieceListModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : count();
}

QString PieceListModel::text(const std::optional<Money>& amount) const
{
    return amount ? m_money.text(*amount) : QString();
}

QString PieceListModel::label(const PieceRow& row) const
{
    return row.state == PieceRow::State::Unavailable ? QCoreApplication::translate("Loomstreet", "Not available")
                                                     : pictureLabel(row.item, m_clock.now());
}

QString PieceListModel::reason(const PieceRow& row) const
{
    if (!row.seenPrice || !row.price)
        return row.reason;
    const Money less{.amount = row.seenPrice->amount - row.price->amount, .currencyCode = row.price->currencyCode};
    return QCoreApplication::translate("Loomstreet", "%1 less now").arg(m_money.text(less));
}

QVariant PieceListModel::data(const QModelIndex& index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid))
        return {};
    const PieceRow& row = m_rows[static_cast<std::size_t>(index.row())];
    switch (role) {
    case ProductListModel::PriceRole:
        return text(row.price);
    case ProductListModel::FormerPriceRole:
        return text(row.former);
    case ProductListModel::LabelRole:
        return label(row);
    case ProductListModel::SoldOutRole:
        return row.state == PieceRow::State::Current && row.item.availableForSale == false;
    case ProductListModel::ReasonRole:
        return reason(row);
    case UnavailableRole:
        return row.state == PieceRow::State::Unavailable;
    default:
        return ProductListModel::fact(row.item, role);
    }
}

QHash<int, QByteArray> PieceListModel::roleNames() const
{
    QHash<int, QByteArray> names = ProductListModel::names();
    names.insert(UnavailableRole, "unavailable");
    return names;
}

} // namespace loom
