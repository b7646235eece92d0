#pragma once

#include "support/SupportEntry.h"

#include <QAbstractListModel>

namespace loom
{

class Clock;
class DateFormat;

/// The messages as rows, the newest first: row 0 is what was said last. Rows that stay are never taken away. Main
/// thread.
class SupportThreadModel : public QAbstractListModel
{
    Q_OBJECT
    Q_PROPERTY(int count READ count NOTIFY countChanged)

public:
    enum Role {
        KeyRole = Qt::UserRole + 1, ///< "key": text that stays the same
        IsMineRole,                 ///< "isMine"
        TextRole,                   ///< "text": may be empty beside attachments
        AttachmentsRole,            ///< "attachments": list of SupportAttachment
        TimeLabelRole,              ///< "timeLabel"
        DayLabelRole,               ///< "dayLabel": of the first message of a day; else empty
        StateRole,                  ///< "state": see State
        AgentRole,                  ///< "agent": who wrote it, of customer service; may be empty
        ProblemRole,                ///< "problem": why it may not have arrived; else empty
    };
    Q_ENUM(Role)
    /// As SupportEntry::State.
    enum State { Sent, Sending, Unconfirmed };
    Q_ENUM(State)

    SupportThreadModel(const DateFormat& dates, const Clock& clock, QObject* parent = nullptr);

    [[nodiscard]] int count() const { return static_cast<int>(m_rows.size()); }
    /// `entries`: the oldest first, each key once.
    void show(const std::vector<SupportEntry>& entries);
    /// The language of the window changed.
    void retranslate();

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
    [[nodiscard]] QHash<int, QByteArray> roleNames() const override;

Q_SIGNALS:
    void countChanged();

private:
    [[nodiscard]] QString dayLabel(std::size_t row) const;

    const DateFormat& m_dates;
    const Clock& m_clock;
    std::vector<SupportEntry> m_rows; ///< the newest first
};

} // namespace loom
