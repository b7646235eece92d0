#include "app/ClosedTabs.h"

#include "storage/DataFolder.h"

#include <QJsonArray>

namespace loom
{

namespace
{

const QString file = QStringLiteral("lst_closed_tabs");

} // namespace

ClosedTabs::ClosedTabs(DataFolder& folder, QObject* parent)
    : QObject(parent)
    , m_folder(folder)
    , m_tabs(folder.loadList(file, decodeTabState))
{
    if (m_tabs.size() > maximum)
        m_tabs.erase(m_tabs.begin(), m_tabs.end() - maximum);
}

void ClosedTabs::add(const TabState& tab)
{
    if (tab.section == SectionState{} && !tab.preview)
        return;
    m_tabs.push_back(tab);
    if (m_tabs.size() > maximum)
        m_tabs.erase(m_tabs.begin());
    save();
}

std::optional<TabState> ClosedTabs::take()
{
    if (m_tabs.empty())
        return std::nullopt;
    std::optional<TabState> tab = std::move(m_tabs.back());
    m_tabs.pop_back();
    save();
    return tab;
}

void ClosedTabs::save()
{
    QJsonArray list;
    for (const TabState& tab : m_tabs)
        list.append(toJson(tab));
    m_folder.save(file, list);
    Q_EMIT changed();
}

} // namespace loom
