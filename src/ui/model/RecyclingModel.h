#pragma once

#include <QAbstractListModel>
#include <QPointer>
#include <QTimer>
#include <QtQml/qqmlregistration.h>

#include <vector>

namespace loom
{

/// The rows of a list that are in sight and near it. A view makes one item for each row of this model, and the item
/// is given other rows of the list as the view moves on: a few in a turn of the event loop, what is seen first.
/// Owned by a view; main thread.
class RecyclingModel : public QAbstractListModel
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QAbstractItemModel* source READ source WRITE setSource NOTIFY sourceChanged)
    Q_PROPERTY(int count READ count NOTIFY countChanged)
    Q_PROPERTY(int current READ current WRITE setCurrent NOTIFY currentChanged)
    Q_PROPERTY(int held READ held WRITE setHeld NOTIFY heldChanged)
    Q_PROPERTY(bool complete READ isComplete NOTIFY completeChanged)

public:
    /// The role "place": which row of the list it is, -1 for an item that is spare.
    static constexpr int PlaceRole = Qt::UserRole + 1000;

    explicit RecyclingModel(QObject* parent = nullptr);

    [[nodiscard]] QAbstractItemModel* source() const { return m_source; }
    void setSource(QAbstractItemModel* source);

    /// How many rows the list has.
    [[nodiscard]] int count() const { return m_source ? m_source->rowCount() : 0; }

    /// The row that the keyboard is at, followed as the list changes; it always has an item. -1 in an empty list.
    [[nodiscard]] int current() const { return m_current; }
    void setCurrent(int place);

    /// One more row that keeps its item, out of sight too; -1 for none.
    [[nodiscard]] int held() const { return m_held; }
    void setHeld(int place);

    /// Everything in sight has an item.
    [[nodiscard]] bool isComplete() const { return m_isComplete; }

    /// What is in sight, and what is near: from the first to the last of each.
    Q_INVOKABLE void look(int firstSeen, int lastSeen, int firstNear, int lastNear);
    /// The view goes: from here on nothing is given to it, which could not make an item of it any more.
    Q_INVOKABLE void end();
    /// The row of this model that a row of the list is at, -1 when it has no item.
    Q_INVOKABLE [[nodiscard]] int indexOf(int place) const;

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
    [[nodiscard]] QHash<int, QByteArray> roleNames() const override;

Q_SIGNALS:
    void sourceChanged();
    void countChanged();
    void currentChanged();
    void heldChanged();
    void completeChanged();
    /// Rows of the list were taken out, and those behind them are about to move up, or have.
    void closingUp();
    void closedUp();

private:
    struct Slot {
        int place = -1;
        bool isStale = false;
    };
    struct Range {
        int first = 0;
        int last = -1;

        [[nodiscard]] bool holds(int place) const { return place >= first && place <= last; }
        [[nodiscard]] int distance(int place) const
        {
            return place < first ? first - place : place > last ? place - last : 0;
        }
    };

    void listen();
    void insertPlaces(int first, int last);
    void removePlaces(int first, int last);
    void noteChanges(int first, int last);
    void begin();
    void work();
    bool workOnce();
    void give(int place);
    [[nodiscard]] int missing(const Range& range) const;
    [[nodiscard]] int stale(const Range& range) const;
    [[nodiscard]] int slotToGive() const;
    template <typename Renumber>
    void renumber(Renumber renumber);
    void tell(int slot, const QList<int>& roles = {});
    void update();

    QPointer<QAbstractItemModel> m_source;
    std::vector<Slot> m_slots;
    Range m_seen;
    Range m_near;
    int m_current = -1;
    int m_held = -1;
    bool m_isComplete = true;
    bool m_isUpwards = false;
    bool m_hasEnded = false;
    QTimer m_working;
};

} // namespace loom
