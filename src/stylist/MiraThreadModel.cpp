#include "stylist/MiraThreadModel.h"

#include "base/Clock.h"
#include "catalog/DateFormat.h"
#include "catalog/DayLabel.h"
#include "stylist/MiraCards.h"

#include <QHash>
#include <QVariantMap>

#include <algorithm>

namespace loom
{

namespace
{

/// Whether the word stands in the text by itself.
bool names(const QString& text, const QString& word)
{
    for (qsizetype at = text.indexOf(word, 0, Qt::CaseInsensitive); at >= 0;
         at = text.indexOf(word, at + 1, Qt::CaseInsensitive)) {
        const qsizetype end = at + word.size();
        const bool isBegun = at > 0 && text.at(at - 1).isLetterOrNumber() && word.front().isLetterOrNumber();
        if (!isBegun && (end == text.size() || !text.at(end).isLetterOrNumber()))
            return true;
    }
    return false;
}

/// The indexes of the longest ascending selection of the numbers, in order.
std::vector<std::size_t> longestAscent(const std::vector<std::optional<std::size_t>>& numbers)
{
    std::vector<std::size_t> ends; // of the best selection of each length, the index of its last
    std::vector<std::size_t> before(numbers.size());
    for (std::size_t i = 0; i < numbers.size(); ++i) {
        if (!numbers[i])
            continue;
        const auto end =
            std::ranges::lower_bound(ends, *numbers[i], std::less(), [&](std::size_t at) { return *numbers[at]; });
        before[i] = end == ends.begin() ? i : *std::prev(end);
        if (end == ends.end())
            ends.push_back(i);
        else
            *end = i;
    }
    std::vector<std::size_t> selection(ends.size());
    for (std::size_t left = ends.size(), at = ends.empty() ? 0 : ends.back(); left > 0; --left, at = before[at])
        selection[left - 1] = at;
    return selection;
}

} // namespace

MiraThreadModel::MiraThreadModel(MiraCards& cards, const DateFormat& dates, const Clock& clock, QObject* parent)
    : QAbstractListModel(parent)
    , m_cards(cards)
    , m_dates(dates)
    , m_clock(clock)
{
    connect(&cards, &MiraCards::changed, this, &MiraThreadModel::tellOfCards);
}

void MiraThreadModel::show(const std::vector<MiraEntry>& entries)
{
    const std::size_t before = m_rows.size();
    QHash<QString, std::size_t> places;
    places.reserve(static_cast<qsizetype>(entries.size()));
    for (std::size_t i = 0; i < entries.size(); ++i)
        places.insert(entries[i].key, i);

    // As many as can stay in their order do; all else goes, and may come in anew elsewhere.
    std::vector<std::optional<std::size_t>> wanted;
    wanted.reserve(m_rows.size());
    for (const Row& row : m_rows) {
        const auto place = places.constFind(row.entry.key);
        wanted.push_back(place == places.constEnd() ? std::nullopt : std::optional(*place));
    }
    const std::vector<std::size_t> stays = longestAscent(wanted);
    std::vector<std::size_t> staying;
    std::size_t goneFrom = m_rows.size();
    for (auto row = stays.rbegin(); row != stays.rend(); ++row) {
        removeRange(*row + 1, goneFrom);
        goneFrom = *row;
        staying.push_back(*wanted[*row]);
    }
    removeRange(0, goneFrom);
    std::ranges::reverse(staying);

    auto next = staying.begin();
    for (std::size_t place = 0; place < entries.size();) {
        if (next != staying.end() && *next == place) {
            update(place, entries[place]);
            ++next;
            ++place;
            continue;
        }
        const std::size_t end = next == staying.end() ? entries.size() : *next;
        std::vector<Row> rows;
        rows.reserve(end - place);
        for (std::size_t i = place; i < end; ++i)
            rows.push_back({.entry = entries[i], .text = {}});
        insertRange(place, std::move(rows));
        place = end;
    }
    if (m_rows.size() != before)
        Q_EMIT countChanged();
}

void MiraThreadModel::removeRange(std::size_t from, std::size_t to)
{
    if (from >= to)
        return;
    beginRemoveRows({}, rowOf(to - 1), rowOf(from));
    m_rows.erase(m_rows.begin() + static_cast<std::ptrdiff_t>(from), m_rows.begin() + static_cast<std::ptrdiff_t>(to));
    endRemoveRows();
    if (from < m_rows.size()) { // it may be the first of its day now
        const QModelIndex next = index(rowOf(from));
        Q_EMIT dataChanged(next, next, {DayLabelRole});
    }
}

void MiraThreadModel::insertRange(std::size_t at, std::vector<Row> rows)
{
    const int first = count() - static_cast<int>(at);
    beginInsertRows({}, first, first + static_cast<int>(rows.size()) - 1);
    const std::size_t end = at + rows.size();
    m_rows.insert(m_rows.begin() + static_cast<std::ptrdiff_t>(at), std::make_move_iterator(rows.begin()),
                  std::make_move_iterator(rows.end()));
    endInsertRows();
    if (end < m_rows.size()) { // and no more
        const QModelIndex next = index(rowOf(end));
        Q_EMIT dataChanged(next, next, {DayLabelRole});
    }
}

void MiraThreadModel::update(std::size_t place, const MiraEntry& entry)
{
    Row& row = m_rows[place];
    if (row.entry == entry)
        return;
    if (row.entry.message.body != entry.message.body)
        row.text.reset();
    row.entry = entry;
    const QModelIndex changed = index(rowOf(place));
    Q_EMIT dataChanged(changed, changed);
}

void MiraThreadModel::tellOfCards(const QSet<QString>& handles)
{
    const auto concerns = [&handles](const Row& row) {
        if (!row.text) // nobody looked
            return false;
        const auto& attachments = row.entry.message.attachments;
        if (handles.isEmpty())
            return !attachments.empty() || !row.text->handles.isEmpty();
        const auto isAmong = [&handles](const QString& handle) {
            return handles.contains(handle);
        };
        return std::ranges::any_of(attachments, isAmong, &MiraAttachment::handle) ||
               std::ranges::any_of(row.text->handles, isAmong);
    };
    for (std::size_t place = 0; place < m_rows.size(); ++place) {
        if (!concerns(m_rows[place]))
            continue;
        const QModelIndex changed = index(rowOf(place));
        Q_EMIT dataChanged(changed, changed, {CardsRole});
    }
}

void MiraThreadModel::setOrders(std::vector<MiraOrdersResponse::Order> orders)
{
    if (m_orders == orders)
        return;
    m_orders = std::move(orders);
    if (!m_rows.empty())
        Q_EMIT dataChanged(index(0), index(count() - 1), {OrderRole});
}

void MiraThreadModel::retranslate()
{
    if (!m_rows.empty())
        Q_EMIT dataChanged(index(0), index(count() - 1), {TimeLabelRole, DayLabelRole});
}

const MiraRowText& MiraThreadModel::textOf(const Row& row) const
{
    if (!row.text)
        row.text = miraRowText(row.entry.message);
    return *row.text;
}

QString MiraThreadModel::dayLabel(std::size_t place) const
{
    const auto dayOf = [this](std::size_t at) {
        return m_rows[at].entry.message.createdAt.toLocalTime().date();
    };
    const QDate day = dayOf(place);
    if (!day.isValid() || (place > 0 && dayOf(place - 1) == day))
        return {};
    return loom::dayLabel(m_rows[place].entry.message.createdAt, m_clock.now(), m_dates);
}

QVariant MiraThreadModel::orderOf(const Row& row) const
{
    if (row.entry.isMine())
        return {};
    for (const MiraOrdersResponse::Order& order : m_orders) {
        if (!order.name.isEmpty() && names(textOf(row).text, order.name)) {
            return QVariantMap{{QStringLiteral("id"), order.id},
                               {QStringLiteral("name"), order.name},
                               {QStringLiteral("status"), order.status}};
        }
    }
    return {};
}

int MiraThreadModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : count();
}

QVariant MiraThreadModel::data(const QModelIndex& index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid))
        return {};
    const std::size_t place = m_rows.size() - 1 - static_cast<std::size_t>(index.row());
    const Row& row = m_rows[place];
    switch (role) {
    case KeyRole:
        return row.entry.key;
    case IsMineRole:
        return row.entry.isMine();
    case TextRole:
        return textOf(row).text;
    case CardsRole: {
        QVariantList cards;
        for (const MiraCard& card : m_cards.cards(row.entry.message.attachments, textOf(row).handles))
            cards.append(QVariant::fromValue(card));
        return cards;
    }
    case TimeLabelRole:
        return m_dates.time(row.entry.message.createdAt);
    case DayLabelRole:
        return dayLabel(place);
    case StateRole:
        return static_cast<int>(row.entry.state);
    case AsksMeasurementsRole:
        return textOf(row).asksMeasurements;
    case SentencesRole:
        return textOf(row).sentences;
    case OrderRole:
        return orderOf(row);
    default:
        return {};
    }
}

QHash<int, QByteArray> MiraThreadModel::roleNames() const
{
    return {{KeyRole, "key"},
            {IsMineRole, "isMine"},
            {TextRole, "text"},
            {CardsRole, "cards"},
            {TimeLabelRole, "timeLabel"},
            {DayLabelRole, "dayLabel"},
            {StateRole, "state"},
            {AsksMeasurementsRole, "asksMeasurements"},
            {SentencesRole, "sentences"},
            {OrderRole, "order"}};
}

} // namespace loom
