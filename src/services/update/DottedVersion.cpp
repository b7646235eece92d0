#include "services/update/DottedVersion.h"

#include <QStringList>

#include <algorithm>

namespace loom
{

namespace
{

/// Of two numbers without leading zeros, however long, the longer one is the greater.
std::strong_ordering compareNumbers(const QString& one, const QString& other)
{
    if (one.size() != other.size())
        return one.size() <=> other.size();
    return one.compare(other) <=> 0;
}

} // namespace

std::optional<DottedVersion> DottedVersion::parse(const QString& text)
{
    DottedVersion version;
    for (const QString& component : text.split(u'.')) {
        const auto isFigure = [](QChar character) {
            return character >= u'0' && character <= u'9';
        };
        if (component.isEmpty() || !std::ranges::all_of(component, isFigure))
            return std::nullopt;
        const auto first = std::ranges::find_if(component, [](QChar figure) { return figure != u'0'; });
        version.m_components.push_back(component.mid(first - component.begin()));
    }
    // As if they were missing.
    while (!version.m_components.empty() && version.m_components.back().isEmpty())
        version.m_components.pop_back();
    return version;
}

std::strong_ordering DottedVersion::operator<=>(const DottedVersion& other) const
{
    return std::lexicographical_compare_three_way(m_components.begin(), m_components.end(), other.m_components.begin(),
                                                  other.m_components.end(), compareNumbers);
}

} // namespace loom
