#include "catalog/RecentSearches.h"

#include "base/FoldedText.h"
#include "catalog/DisplayText.h"
#include "storage/Preferences.h"

namespace loom
{

namespace
{

constexpr qsizetype longestText = 200;

/// Takes out what a search finds the same pieces by.
void removeSame(QStringList& list, const QString& text)
{
    const QString folded = FoldedText::fold(text);
    list.removeIf([&](const QString& other) {
        return other == text || (!folded.isEmpty() && FoldedText::fold(other) == folded);
    });
}

} // namespace

RecentSearches::RecentSearches(Preferences& preferences, QObject* parent)
    : QObject(parent)
    , m_preferences(preferences)
{
    for (const QString& stored : preferences.value(preferences::recentSearches)) {
        const QString text = displayLine(stored, longestText);
        if (!text.isEmpty() && !m_list.contains(text) && m_list.size() < maximum)
            m_list.append(text);
    }
}

void RecentSearches::add(const QString& text)
{
    const QString line = displayLine(text, longestText);
    if (line.isEmpty())
        return;
    QStringList list = m_list;
    removeSame(list, line);
    list.prepend(line);
    set(list.mid(0, maximum));
}

void RecentSearches::remove(const QString& text)
{
    QStringList list = m_list;
    removeSame(list, text);
    set(list);
}

void RecentSearches::set(QStringList list)
{
    if (list == m_list)
        return;
    m_list = std::move(list);
    m_preferences.set(preferences::recentSearches, m_list);
    Q_EMIT changed();
}

} // namespace loom
