#pragma once

#include "stylist/voice/MiraVoiceTurn.h"

#include <QAbstractListModel>

#include <vector>

namespace loom
{

/// What was said during a call, oldest first: a line that is not final yet is rewritten by the next of its speaker.
/// Main thread.
class MiraVoiceTranscript : public QAbstractListModel
{
    Q_OBJECT
    Q_PROPERTY(int count READ count NOTIFY changed)
    Q_PROPERTY(QString lastText READ lastText NOTIFY changed)
    Q_PROPERTY(bool isLastMine READ isLastMine NOTIFY changed)

public:
    enum Role { IsMineRole = Qt::UserRole, TextRole, IsFinalRole };
    /// The oldest go when there are more.
    static constexpr std::size_t mostTurns = 2000;

    using QAbstractListModel::QAbstractListModel;

    [[nodiscard]] const std::vector<MiraVoiceTurn>& turns() const { return m_turns; }
    [[nodiscard]] int count() const { return static_cast<int>(m_turns.size()); }
    /// The latest line, for captions of one line.
    [[nodiscard]] QString lastText() const;
    [[nodiscard]] bool isLastMine() const;
    /// An empty text says nothing new; a final one completes the speaker's line as it stands.
    void say(MiraVoiceTurn::Role role, const QString& text, bool isFinal);
    /// What is not final will not be finished: it stays as it is.
    void settle();
    void clear();

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
    [[nodiscard]] QHash<int, QByteArray> roleNames() const override;

Q_SIGNALS:
    void changed();
    /// A line became final, for those who only listen.
    void finished(const QString& text, bool isMine);

private:
    void rewrite(std::size_t place, const QString& text, bool isFinal);

    std::vector<MiraVoiceTurn> m_turns;
};

} // namespace loom
