#include "ui/model/RecyclingModel.h"

#include <QElapsedTimer>

#include <algorithm>
#include <chrono>
#include <utility>

namespace loom
{

namespace
{

/// What a turn of the event loop may take for it. The last item that is begun in it comes on top.
constexpr std::chrono::milliseconds share{1};

} // namespace

RecyclingModel::RecyclingModel(QObject* parent)
    : QAbstractListModel(parent)
{
    m_working.setInterval(0);
    connect(&m_working, &QTimer::timeout, this, &RecyclingModel::work);
}

void RecyclingModel::setSource(QAbstractItemModel* source)
{
    if (m_source == source)
        return;
    if (m_source)
        m_source->disconnect(this);
    beginResetModel();
    m_source = source;
    m_slots.clear();
    m_current = count() > 0 ? 0 : -1;
    m_held = -1;
    endResetModel();
    if (source)
        listen();
    Q_EMIT sourceChanged();
    Q_EMIT countChanged();
    Q_EMIT currentChanged();
    begin();
}

void RecyclingModel::listen()
{
    connect(m_source, &QAbstractItemModel::rowsInserted, this,
            [this](const QModelIndex&, int first, int last) { insertPlaces(first, last); });
    connect(m_source, &QAbstractItemModel::rowsRemoved, this,
            [this](const QModelIndex&, int first, int last) { removePlaces(first, last); });
    connect(m_source, &QAbstractItemModel::dataChanged, this,
            [this](const QModelIndex& first, const QModelIndex& last) { noteChanges(first.row(), last.row()); });
    // Others are where they were, as far as there are any.
    const auto noteAll = [this] {
        noteChanges(0, count() - 1);
    };
    connect(m_source, &QAbstractItemModel::rowsMoved, this, noteAll);
    connect(m_source, &QAbstractItemModel::layoutChanged, this, noteAll);
    connect(m_source, &QAbstractItemModel::modelReset, this, [this, noteAll] {
        renumber([this](int place) { return place < count() ? place : -1; });
        noteAll();
        update();
    });
    connect(m_source, &QObject::destroyed, this, [this] {
        renumber([](int) { return -1; });
        update();
    });
}

template <typename Renumber>
void RecyclingModel::renumber(Renumber renumber)
{
    const int current = m_current < 0 ? -1 : renumber(m_current);
    m_held = m_held < 0 ? -1 : renumber(m_held);
    const bool isOther = std::exchange(m_current, current) != current;
    for (std::size_t i = 0; i < m_slots.size(); ++i) {
        const int place = m_slots[i].place < 0 ? -1 : renumber(m_slots[i].place);
        if (std::exchange(m_slots[i].place, place) != place)
            tell(static_cast<int>(i), {PlaceRole});
    }
    if (isOther)
        Q_EMIT currentChanged();
}

void RecyclingModel::insertPlaces(int first, int last)
{
    const int added = last - first + 1;
    renumber([first, added](int place) { return place >= first ? place + added : place; });
    update();
}

void RecyclingModel::removePlaces(int first, int last)
{
    const int removed = last - first + 1;
    const bool isAmid = first < count();
    if (m_current >= first && m_current <= last) // the next one takes its place, at the end the one before
        m_current = isAmid ? last + 1 : first - 1;
    if (isAmid)
        Q_EMIT closingUp();
    renumber([=](int place) { return place < first ? place : place <= last ? -1 : place - removed; });
    if (isAmid)
        Q_EMIT closedUp();
    update();
}

void RecyclingModel::noteChanges(int first, int last)
{
    for (Slot& slot : m_slots)
        slot.isStale = slot.isStale || (slot.place >= first && slot.place <= last);
    begin();
}

void RecyclingModel::update()
{
    Q_EMIT countChanged();
    setCurrent(std::clamp(m_current, count() > 0 ? 0 : -1, count() - 1));
    begin();
}

void RecyclingModel::setCurrent(int place)
{
    const int current = std::clamp(place, count() > 0 ? 0 : -1, count() - 1);
    const bool isOther = std::exchange(m_current, current) != current;
    // The keyboard is never nowhere. What is about to be seen comes in its turn.
    if (isOther && current >= 0 && indexOf(current) < 0 && !m_slots.empty() && !m_hasEnded)
        give(current);
    if (isOther)
        Q_EMIT currentChanged();
}

void RecyclingModel::setHeld(int place)
{
    if (std::exchange(m_held, place) != place)
        Q_EMIT heldChanged();
}

void RecyclingModel::look(int firstSeen, int lastSeen, int firstNear, int lastNear)
{
    m_isUpwards = firstSeen < m_seen.first;
    m_seen = {firstSeen, lastSeen};
    m_near = {firstNear, lastNear};
    begin();
}

void RecyclingModel::end()
{
    m_hasEnded = true;
    m_working.stop();
    if (m_source)
        m_source->disconnect(this);
}

void RecyclingModel::begin()
{
    if (m_hasEnded)
        return;
    const bool isComplete = missing(m_seen) < 0;
    if (!isComplete || missing(m_near) >= 0 || stale({0, count() - 1}) >= 0)
        m_working.start();
    if (std::exchange(m_isComplete, isComplete) != isComplete)
        Q_EMIT completeChanged();
}

void RecyclingModel::work()
{
    QElapsedTimer clock;
    clock.start();
    do {
        if (!workOnce()) {
            m_working.stop();
            break;
        }
    } while (std::chrono::nanoseconds(clock.nsecsElapsed()) < share);
    const bool isComplete = missing(m_seen) < 0;
    if (std::exchange(m_isComplete, isComplete) != isComplete)
        Q_EMIT completeChanged();
}

bool RecyclingModel::workOnce()
{
    const auto refresh = [this](const Range& range) {
        const int slot = stale(range);
        if (slot >= 0) {
            m_slots[static_cast<std::size_t>(slot)].isStale = false;
            tell(slot);
        }
        return slot >= 0;
    };
    const auto fill = [this](const Range& range) {
        const int place = missing(range);
        if (place >= 0)
            give(place);
        return place >= 0;
    };
    return refresh(m_seen) || fill(m_seen) || refresh({0, count() - 1}) || fill(m_near);
}

int RecyclingModel::missing(const Range& range) const
{
    const int first = std::max(range.first, 0);
    const int last = std::min(range.last, count() - 1);
    // In the order of reading, or against it when one scrolls back.
    for (int i = 0; i <= last - first; ++i) {
        const int place = m_isUpwards ? last - i : first + i;
        if (indexOf(place) < 0)
            return place;
    }
    return -1;
}

int RecyclingModel::stale(const Range& range) const
{
    const auto found =
        std::ranges::find_if(m_slots, [&range](const Slot& slot) { return slot.isStale && range.holds(slot.place); });
    return found == m_slots.end() ? -1 : static_cast<int>(found - m_slots.begin());
}

int RecyclingModel::slotToGive() const
{
    // A spare one, else the one that is furthest away.
    int best = -1;
    int furthest = 0;
    for (std::size_t i = 0; i < m_slots.size(); ++i) {
        const int place = m_slots[i].place;
        if (place < 0)
            return static_cast<int>(i);
        if (place == m_current || place == m_held || m_near.holds(place) || m_seen.holds(place))
            continue;
        const int distance = m_seen.distance(place);
        if (distance > furthest) {
            furthest = distance;
            best = static_cast<int>(i);
        }
    }
    return best;
}

void RecyclingModel::give(int place)
{
    const int slot = slotToGive();
    if (slot < 0) {
        const int end = rowCount();
        beginInsertRows({}, end, end);
        m_slots.push_back({.place = place});
        endInsertRows();
        return;
    }
    m_slots[static_cast<std::size_t>(slot)] = {.place = place};
    tell(slot);
}

int RecyclingModel::indexOf(int place) const
{
    const auto found = std::ranges::find(m_slots, place, &Slot::place);
    return place < 0 || found == m_slots.end() ? -1 : static_cast<int>(found - m_slots.begin());
}

void RecyclingModel::tell(int slot, const QList<int>& roles)
{
    Q_EMIT dataChanged(index(slot), index(slot), roles);
}

int RecyclingModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_slots.size());
}

QVariant RecyclingModel::data(const QModelIndex& index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid))
        return {};
    const int place = m_slots[static_cast<std::size_t>(index.row())].place;
    if (role == PlaceRole)
        return place;
    return m_source && place >= 0 ? m_source->data(m_source->index(place, 0), role) : QVariant();
}

QHash<int, QByteArray> RecyclingModel::roleNames() const
{
    QHash<int, QByteArray> names = m_source ? m_source->roleNames() : QHash<int, QByteArray>();
    names.insert(PlaceRole, QByteArrayLiteral("place"));
    return names;
}

} // namespace loom
