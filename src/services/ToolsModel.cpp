#include "services/ToolsModel.h"

#include "services/RemoteConfig.h"

namespace loom
{

ToolsModel::ToolsModel(const RemoteConfig& config, QObject* parent)
    : QAbstractListModel(parent)
    , m_config(config)
{
    connect(&config, &RemoteConfig::toolsChanged, this, &ToolsModel::update);
    connect(&config, &RemoteConfig::copyChanged, this, [this] {
        if (count() > 0)
            Q_EMIT dataChanged(index(0), index(count() - 1), {TitleRole, NoteRole});
    });
    update();
}

void ToolsModel::update()
{
    const int before = count();
    std::size_t row = 0;
    for (const Tool& tool : tools) {
        const bool isThere = row < m_shown.size() && m_shown[row] == &tool;
        const bool isHidden = m_config.hiddenTools().contains(QLatin1String(tool.key));
        const int at = static_cast<int>(row);
        if (isThere && isHidden) {
            beginRemoveRows({}, at, at);
            m_shown.erase(m_shown.begin() + at);
            endRemoveRows();
        } else if (!isThere && !isHidden) {
            beginInsertRows({}, at, at);
            m_shown.insert(m_shown.begin() + at, &tool);
            endInsertRows();
        }
        if (!isHidden)
            ++row;
    }
    if (count() != before)
        Q_EMIT countChanged();
}

int ToolsModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : count();
}

QVariant ToolsModel::data(const QModelIndex& index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid))
        return {};
    const Tool& tool = *m_shown[static_cast<std::size_t>(index.row())];
    switch (role) {
    case KeyRole:
        return QString::fromLatin1(tool.key);
    case TitleRole:
        return tool.title.translated();
    case NoteRole:
        return tool.note.translated();
    case SymbolRole:
        return QString::fromLatin1(tool.symbol);
    default:
        return {};
    }
}

QHash<int, QByteArray> ToolsModel::roleNames() const
{
    return {{KeyRole, "key"}, {TitleRole, "title"}, {NoteRole, "note"}, {SymbolRole, "symbol"}};
}

} // namespace loom
