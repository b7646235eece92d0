#include "stylist/voice/MiraVoiceTranscript.h"

#include <algorithm>

namespace loom
{

QString MiraVoiceTranscript::lastText() const
{
    return m_turns.empty() ? QString() : m_turns.back().text;
}

bool MiraVoiceTranscript::isLastMine() const
{
    return !m_turns.empty() && m_turns.back().role == MiraVoiceTurn::Role::User;
}

void MiraVoiceTranscript::say(MiraVoiceTurn::Role role, const QString& text, bool isFinal)
{
    // They may speak at the same time: the line that goes on is not always the last one.
    const auto open = std::ranges::find_if(m_turns.rbegin(), m_turns.rend(), [role](const MiraVoiceTurn& turn) {
        return turn.role == role && !turn.isFinal;
    });
    if (open != m_turns.rend()) {
        rewrite(static_cast<std::size_t>(std::distance(open, m_turns.rend())) - 1, text, isFinal);
        return;
    }
    if (text.isEmpty())
        return;
    if (m_turns.size() == mostTurns) {
        beginRemoveRows({}, 0, 0);
        m_turns.erase(m_turns.begin());
        endRemoveRows();
    }
    beginInsertRows({}, count(), count());
    m_turns.push_back({.role = role, .text = text, .isFinal = isFinal});
    endInsertRows();
    Q_EMIT changed();
    if (isFinal)
        Q_EMIT finished(text, role == MiraVoiceTurn::Role::User);
}

void MiraVoiceTranscript::rewrite(std::size_t place, const QString& text, bool isFinal)
{
    MiraVoiceTurn turn = m_turns[place];
    if (!text.isEmpty())
        turn.text = text;
    turn.isFinal = isFinal;
    if (turn == m_turns[place])
        return;
    m_turns[place] = turn;
    const QModelIndex changedIndex = index(static_cast<int>(place));
    Q_EMIT dataChanged(changedIndex, changedIndex, {TextRole, IsFinalRole});
    Q_EMIT changed();
    if (isFinal)
        Q_EMIT finished(turn.text, turn.role == MiraVoiceTurn::Role::User);
}

void MiraVoiceTranscript::settle()
{
    for (std::size_t place = 0; place < m_turns.size(); ++place) {
        if (!m_turns[place].isFinal)
            rewrite(place, {}, true);
    }
}

void MiraVoiceTranscript::clear()
{
    if (m_turns.empty())
        return;
    beginResetModel();
    m_turns.clear();
    endResetModel();
    Q_EMIT changed();
}

int MiraVoiceTranscript::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : count();
}

QVariant MiraVoiceTranscript::data(const QModelIndex& index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid | CheckIndexOption::ParentIsInvalid))
        return {};
    const MiraVoiceTurn& turn = m_turns[static_cast<std::size_t>(index.row())];
    switch (role) {
    case IsMineRole:
        return turn.role == MiraVoiceTurn::Role::User;
    case Qt::DisplayRole:
    case TextRole:
        return turn.text;
    case IsFinalRole:
        return turn.isFinal;
    default:
        return {};
    }
}

QHash<int, QByteArray> MiraVoiceTranscript::roleNames() const
{
    return {{IsMineRole, "isMine"}, {TextRole, "text"}, {IsFinalRole, "isFinal"}};
}

} // namespace loom
