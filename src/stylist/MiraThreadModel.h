#pragma once

#include "stylist/MiraEntry.h"
#include "stylist/MiraOrdersResponse.h"
#include "stylist/MiraRowText.h"

#include <QAbstractListModel>
#include <QSet>

#include <optional>
#include <vector>

namespace loom
{

class Clock;
class DateFormat;
class MiraCards;

/// The messages of a topic as rows, the newest first: row 0 is what was said last. What a row shows is worked out when
/// it is first looked at; rows that stay are never taken away. Main thread.
class MiraThreadModel : public QAbstractListModel
{
    Q_OBJECT
    Q_PROPERTY(int count READ count NOTIFY countChanged)

public:
    enum Role {
        KeyRole = Qt::UserRole + 1, ///< "key": text that stays the same
        IsMineRole,                 ///< "isMine"
        TextRole,                   ///< "text": without what the application added; may be empty beside cards
        CardsRole,                  ///< "cards": list of MiraCard
        TimeLabelRole,              ///< "timeLabel"
        DayLabelRole,               ///< "dayLabel": of the first message of a day; else empty
        StateRole,                  ///< "state": see State
        AsksMeasurementsRole,       ///< "asksMeasurements"
        SentencesRole,              ///< "sentences": list of texts
        OrderRole,                  ///< "order": {id, name, status}, or undefined
    };
    Q_ENUM(Role)
    /// As MiraEntry::State.
    enum State { Sent, Sending, Unconfirmed };
    Q_ENUM(State)

    MiraThreadModel(MiraCards& cards, const DateFormat& dates, const Clock& clock, QObject* parent = nullptr);

    [[nodiscard]] int count() const { return static_cast<int>(m_rows.size()); }
    /// `entries`: the oldest first, each key once.
    void show(const std::vector<MiraEntry>& entries);
    /// The shopper's recent orders, which a reply may name.
    void setOrders(std::vector<MiraOrdersResponse::Order> orders);
    /// The language of the window changed, or a day ended.
    void retranslate();

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
    [[nodiscard]] QHash<int, QByteArray> roleNames() const override;

Q_SIGNALS:
    void countChanged();

private:
    struct Row {
        MiraEntry entry;
        mutable std::optional<MiraRowText> text; ///< once somebody looked
    };

    [[nodiscard]] const MiraRowText& textOf(const Row& row) const;
    [[nodiscard]] int rowOf(std::size_t place) const { return count() - 1 - static_cast<int>(place); }
    [[nodiscard]] QString dayLabel(std::size_t place) const;
    [[nodiscard]] QVariant orderOf(const Row& row) const;
    void removeRange(std::size_t from, std::size_t to);
    void insertRange(std::size_t at, std::vector<Row> rows);
    void update(std::size_t place, const MiraEntry& entry);
    void tellOfCards(const QSet<QString>& handles);

    MiraCards& m_cards;
    const DateFormat& m_dates;
    const Clock& m_clock;
    std::vector<Row> m_rows; ///< the oldest first
    std::vector<MiraOrdersResponse::Order> m_orders;
};

} // namespace loom
