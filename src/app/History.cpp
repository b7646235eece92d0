#include "app/History.h"

#include <algorithm>

namespace loom
{

History::Page* History::find(int id)
{
    const auto found = std::ranges::find(m_pages, id, &Page::id);
    return found == m_pages.end() ? nullptr : &*found;
}

const History::Page* History::find(int id) const
{
    const auto found = std::ranges::find(m_pages, id, &Page::id);
    return found == m_pages.end() ? nullptr : &*found;
}

std::size_t History::rootOf(std::size_t index) const
{
    while (m_pages[index].route)
        --index;
    return index;
}

void History::reset(SidebarItem section)
{
    m_pages.clear();
    enter(section);
}

void History::enter(SidebarItem section)
{
    append(section, std::nullopt);
}

void History::push(const Route& route)
{
    append(currentPage().section, route);
}

void History::replace(const Route& route)
{
    m_pages.resize(m_current + 1);
    m_pages.back() = {.id = m_nextID++, .section = m_pages.back().section, .route = route, .title = {}};
}

bool History::move(int by)
{
    const auto last = static_cast<std::ptrdiff_t>(m_pages.size()) - 1;
    const auto wanted = std::clamp(static_cast<std::ptrdiff_t>(m_current) + by, std::ptrdiff_t{0}, last);
    return std::exchange(m_current, static_cast<std::size_t>(wanted)) != m_current;
}

void History::append(SidebarItem section, std::optional<Route> route)
{
    if (!m_pages.empty())
        m_pages.resize(m_current + 1);
    m_pages.push_back({.id = m_nextID++, .section = section, .route = std::move(route), .title = {}});
    m_current = m_pages.size() - 1;
    // A section is forgotten as a whole; the one that is shown stays, however deep it is.
    while (m_pages.size() > maximumPages && root() > 0) {
        const auto isRoot = [](const Page& page) {
            return !page.route;
        };
        const auto next = std::find_if(m_pages.begin() + 1, m_pages.end(), isRoot);
        m_current -= static_cast<std::size_t>(next - m_pages.begin());
        m_pages.erase(m_pages.begin(), next);
    }
}

} // namespace loom
