#include "app/Router.h"

#include "app/WindowServices.h"
#include "app/WindowSession.h"
#include "base/Clock.h"
#include "base/FeatureGates.h"
#include "base/Random.h"
#include "storage/Preferences.h"

#include <algorithm>

namespace loom
{

namespace
{

/// How many titles a menu of pages shows at most.
constexpr qsizetype longestMenu = 15;

/// The pages around the current one whose state is kept in memory.
constexpr std::size_t livePagesBehind = 16;
constexpr std::size_t livePagesAhead = 8;

double previewWidthFor(double stored)
{
    return stored > 0 ? std::clamp(stored, Router::leastPreviewWidth, Router::greatestPreviewWidth) : 480.0;
}

} // namespace

Router::Router(const WindowServices& services, WindowSession* session, SidebarItem section, QObject* parent)
    : QObject(parent)
    , m_services(services)
    , m_session(session)
    , m_id(services.random.uuid())
    , m_lastSelectionChange(services.clock.now())
    , m_history(section)
    , m_previewWidth(previewWidthFor(services.preferences.value(preferences::splitPreviewWidth)))
{
    apply(section);
}

// Pages that are still there go while they can turn to the whole of this.
Router::~Router()
{
    m_navigationPath.show({}, 0);
}

void Router::setPinned(bool isPinned)
{
    if (std::exchange(m_isPinned, isPinned) != isPinned)
        Q_EMIT isPinnedChanged();
}

std::vector<Route> Router::routes() const
{
    std::vector<Route> routes;
    for (std::size_t i = m_history.root() + 1; i <= m_history.current(); ++i)
        routes.push_back(*m_history.pages()[i].route);
    return routes;
}

std::vector<Route> Router::forwardRoutes() const
{
    std::vector<Route> routes;
    for (std::size_t i = m_history.current() + 1; i < m_history.pages().size() && m_history.pages()[i].route; ++i)
        routes.insert(routes.begin(), *m_history.pages()[i].route);
    return routes;
}

QMap<int, QString> Router::pageTitles() const
{
    QMap<int, QString> titles;
    for (std::size_t i = m_history.root(); i <= m_history.current(); ++i) {
        if (const QString& title = m_history.pages()[i].title; !title.isEmpty())
            titles.insert(m_history.depthOf(i), title);
    }
    return titles;
}

PageEntry Router::entryOf(const History::Page& page) const
{
    if (!page.route)
        return pageFor(page.section, m_services.storePages);
    const PageEntry entry = pageFor(*page.route, m_services.storePages);
    const auto feature = featureOf(*page.route);
    return feature && !m_services.features.isEnabled(*feature) ? pausedPage(entry, *feature) : entry;
}

PageEntry Router::page(int depth) const
{
    return entryAt(m_history.root() + static_cast<std::size_t>(std::clamp(depth, 0, this->depth())));
}

QString Router::titleAt(std::size_t index) const
{
    const QString& title = m_history.pages()[index].title;
    return title.isEmpty() ? entryAt(index).title : title;
}

QStringList Router::trail() const
{
    QStringList titles;
    for (std::size_t i = m_history.root(); i <= m_history.current(); ++i)
        titles.append(titleAt(i));
    return titles;
}

void Router::push(const Route& route)
{
    m_history.push(route);
    apply(selection());
}

void Router::select(SidebarItem item)
{
    const SidebarItem before = selection();
    if (item == before) {
        goToSectionHome();
        return;
    }
    m_history.enter(item);
    apply(before);
}

void Router::selectItem(int item)
{
    if (item >= 0 && item < static_cast<int>(sidebarEntries.size()))
        select(static_cast<SidebarItem>(item));
}

void Router::back()
{
    go(-1);
}

void Router::forward()
{
    go(1);
}

void Router::go(int pages)
{
    const SidebarItem before = selection();
    if (m_history.move(pages))
        apply(before);
}

void Router::backTo(int depth)
{
    if (depth >= 0 && depth < this->depth())
        go(depth - this->depth());
}

void Router::goToSectionHome()
{
    backTo(0);
}

QStringList Router::backTitles() const
{
    QStringList titles;
    for (std::size_t i = m_history.current(); i > 0 && titles.size() < longestMenu; --i)
        titles.append(titleAt(i - 1));
    return titles;
}

QStringList Router::forwardTitles() const
{
    QStringList titles;
    for (std::size_t i = m_history.current() + 1; i < m_history.pages().size() && titles.size() < longestMenu; ++i)
        titles.append(titleAt(i));
    return titles;
}

void Router::apply(SidebarItem before)
{
    const bool wasApplying = std::exchange(m_isApplying, true);
    const std::size_t current = m_history.current();
    const std::size_t first = current > livePagesBehind ? current - livePagesBehind : 0;
    const std::size_t last = std::min(current + livePagesAhead, m_history.pages().size() - 1);
    std::vector<VisitedPage> pages;
    for (std::size_t i = first; i <= last; ++i)
        pages.push_back({.id = m_history.pages()[i].id, .depth = m_history.depthOf(i), .entry = entryAt(i)});
    m_navigationPath.show(std::move(pages), static_cast<int>(current - first));
    m_isApplying = wasApplying;
    if (selection() != before) {
        m_lastSelectionChange = m_services.clock.now();
        Q_EMIT selectionChanged();
    }
    Q_EMIT stackChanged();
    Q_EMIT titleChanged();
    Q_EMIT topChanged();
}

void Router::resolveAgain()
{
    const bool isSame = std::ranges::all_of(m_navigationPath.pages(), [this](const VisitedPage& shown) {
        const History::Page* const page = m_history.find(shown.id);
        return !page || entryOf(*page).kind == shown.entry.kind;
    });
    if (!isSame)
        apply(selection());
}

void Router::retranslate()
{
    for (int row = 0; row < m_navigationPath.rowCount(); ++row) {
        const VisitedPage shown = m_navigationPath.pages()[static_cast<std::size_t>(row)];
        History::Page* const page = m_history.find(shown.id);
        if (!page)
            continue;
        if (page->title == shown.entry.title)
            page->title.clear(); // it had nothing else to tell
        m_navigationPath.rename(row, entryOf(*page).title);
    }
    Q_EMIT titleChanged();
}

TabState Router::state() const
{
    TabState state{.isPinned = m_isPinned,
                   .section = {.selection = selection(), .routes = routes()},
                   .titles = {},
                   .scrollOffsets = {},
                   .preview = m_preview};
    for (std::size_t i = m_history.root(); i <= m_history.current(); ++i) {
        state.titles.append(m_history.pages()[i].title);
        state.scrollOffsets.append(m_history.pages()[i].scrollOffset);
    }
    return state;
}

void Router::restore(const TabState& state)
{
    const SidebarItem before = selection();
    setPinned(state.isPinned);
    const auto keep = [this, &state] {
        History::Page& page = m_history.currentPage();
        page.title = state.titles.value(depth());
        page.scrollOffset = std::max(0.0, state.scrollOffsets.value(depth()));
    };
    m_history.reset(state.section.selection);
    keep();
    for (const Route& route : state.section.routes) {
        m_history.push(route);
        keep();
    }
    apply(before);
    setPreview(state.preview);
}

void Router::reload()
{
    ++m_reloadToken;
    Q_EMIT reloadTokenChanged();
    // A page may take itself back while it reloads.
    for (const QPointer<QObject>& page : QMap(m_reloadHandlers)) {
        if (page)
            QMetaObject::invokeMethod(page, "reload");
    }
}

void Router::softReload()
{
    ++m_softReloadToken;
    Q_EMIT softReloadTokenChanged();
}

int Router::addReloadHandler(QObject* page)
{
    m_reloadHandlers.insert(m_nextReloadKey, page);
    return m_nextReloadKey++;
}

void Router::setPageTitle(int pageID, const QString& title)
{
    History::Page* const page = m_history.find(pageID);
    if (!page || page->title == title)
        return;
    page->title = title;
    if (!m_isApplying) // else it is told in a moment
        Q_EMIT titleChanged();
}

void Router::setScrollPosition(int pageID, double position)
{
    History::Page* const page = m_history.find(pageID);
    if (m_isApplying || !page || qFuzzyCompare(1 + page->scrollOffset, 1 + position))
        return;
    page->scrollOffset = position;
    Q_EMIT scrollPositionChanged();
}

double Router::scrollPosition(int pageID) const
{
    const History::Page* const page = m_history.find(pageID);
    return page ? page->scrollOffset : 0;
}

} // namespace loom
