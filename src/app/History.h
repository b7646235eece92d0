#pragma once

#include "navigation/Routes.h"
#include "navigation/SidebarItem.h"

#include <QString>

#include <optional>
#include <vector>

namespace loom
{

/// The pages a tab has been on, in their order, and the one it is on now. A page without a route is the root of its
/// section; those pushed on it follow it. What lies behind the current page is what "forward" leads to.
class History
{
public:
    struct Page {
        int id = 0;
        SidebarItem section = SidebarItem::Home;
        std::optional<Route> route;
        QString title; ///< as the page told it; empty while it has not
        double scrollOffset = 0;
    };

    /// Pages beyond this many are forgotten, the oldest sections first.
    static constexpr std::size_t maximumPages = 200;

    explicit History(SidebarItem section) { enter(section); }

    [[nodiscard]] const std::vector<Page>& pages() const { return m_pages; }
    [[nodiscard]] std::size_t current() const { return m_current; }
    [[nodiscard]] const Page& currentPage() const { return m_pages[m_current]; }
    [[nodiscard]] Page& currentPage() { return m_pages[m_current]; }
    /// Where the root of the current section is.
    [[nodiscard]] std::size_t root() const { return rootOf(m_current); }
    [[nodiscard]] int depth() const { return static_cast<int>(m_current - root()); }
    /// How deep in its section the page at `index` is.
    [[nodiscard]] int depthOf(std::size_t index) const { return static_cast<int>(index - rootOf(index)); }
    [[nodiscard]] Page* find(int id);
    [[nodiscard]] const Page* find(int id) const;

    /// Begins anew with the root of a section.
    void reset(SidebarItem section);
    /// The root of a section comes behind the current page, what was there is forgotten.
    void enter(SidebarItem section);
    /// A page comes behind the current one, what was there is forgotten.
    void push(const Route& route);
    /// Another page takes the place of the current one; what was behind it is forgotten.
    void replace(const Route& route);
    /// Moves by so many pages, as far as there are any. False when it stays where it is.
    bool move(int by);

private:
    [[nodiscard]] std::size_t rootOf(std::size_t index) const;
    void append(SidebarItem section, std::optional<Route> route);

    std::vector<Page> m_pages;
    std::size_t m_current = 0;
    int m_nextID = 0;
};

} // namespace loom
