#include "app/Router.h"

#include "app/WindowServices.h"
#include "app/WindowSession.h"
#include "base/Clock.h"
#include "base/Random.h"

namespace loom
{

namespace
{

template <typename... Functions>
struct Overloaded : Functions... {
    using Functions::operator()...;
};

std::optional<ProductListItem> cardIn(const QVariant& item)
{
    return item.canConvert<ProductListItem>() ? std::optional(item.value<ProductListItem>()) : std::nullopt;
}

} // namespace

Router::Router(const WindowServices& services, WindowSession* session, SidebarItem section, QObject* parent)
    : QObject(parent)
    , m_services(services)
    , m_session(session)
    , m_id(services.random.uuid())
    , m_section{.selection = section, .routes = {}}
    , m_lastSelectionChange(services.clock.now())
{
}

void Router::setPinned(bool isPinned)
{
    if (std::exchange(m_isPinned, isPinned) != isPinned)
        Q_EMIT isPinnedChanged();
}

PageEntry Router::page(int depth) const
{
    if (depth <= 0 || depth > this->depth())
        return pageFor(m_section.selection, m_services.storePages);
    return pageFor(m_section.routes[static_cast<std::size_t>(depth - 1)], m_services.storePages);
}

QString Router::titleAt(int depth) const
{
    const QString title = m_pageTitles.value(depth);
    return title.isEmpty() ? page(depth).title : title;
}

QStringList Router::trail() const
{
    QStringList titles;
    for (int i = 0; i <= depth(); ++i)
        titles.append(titleAt(i));
    return titles;
}

bool Router::open(const std::optional<QString>& link)
{
    return std::visit(Overloaded{
                          [this](const LinkResolver::Product& product) {
                              openProduct({.handle = product.handle, .item = {}}, OpenMode::Page);
                              return true;
                          },
                          [this](const LinkResolver::Collection& collection) {
                              push(ShopRoute{ShopRoute::Collection{.handle = collection.handle, .title = {}}});
                              return true;
                          },
                          [this](const LinkResolver::Search& search) {
                              openSearch(search.query);
                              return true;
                          },
                          [this](const LinkResolver::External& external) {
                              m_services.openExternally(external.url);
                              return true;
                          },
                          [](const LinkResolver::None&) { return false; },
                          [this](const LinkResolver::Brands&) {
                              select(SidebarItem::Brands);
                              return true;
                          },
                          [this](const LinkResolver::Starlook&) {
                              select(SidebarItem::Starlook);
                              return true;
                          },
                          [this](const LinkResolver::Cart&) {
                              if (m_session)
                                  m_session->setCartOpen(true);
                              return true;
                          },
                          [this](const LinkResolver::Account&) {
                              select(SidebarItem::Account);
                              return true;
                          },
                      },
                      m_services.resolver.resolve(link));
}

void Router::openProduct(const ProductPreview& request, OpenMode mode)
{
    const Qt::KeyboardModifiers keys = m_services.heldKeys();
    if (mode == OpenMode::Automatic)
        mode = keys.testFlag(Qt::ControlModifier) ? OpenMode::NewTab : OpenMode::Page;
    const Route route = ShopRoute{ShopRoute::Product{.handle = request.handle, .item = request.item}};
    if (mode == OpenMode::NewTab && m_session) {
        Router* const tab =
            m_session->openTab(m_section.selection,
                               keys.testFlag(Qt::ShiftModifier) ? TabActivation::Background : TabActivation::Activate);
        tab->push(route);
        return;
    }
    push(route);
}

void Router::openProductCard(const QString& handle, const QVariant& item)
{
    openProduct({.handle = handle, .item = cardIn(item)}, OpenMode::Automatic);
}

void Router::openProductInNewTab(const QString& handle, const QVariant& item)
{
    openProduct({.handle = handle, .item = cardIn(item)}, OpenMode::NewTab);
}

void Router::openCollection(const QString& handle, const QString& title)
{
    const Route route = ShopRoute{
        ShopRoute::Collection{.handle = handle, .title = title.isEmpty() ? std::nullopt : std::optional(title)}};
    const auto* const top = m_section.routes.empty() ? nullptr : std::get_if<ShopRoute>(&m_section.routes.back());
    if (!top || !std::holds_alternative<ShopRoute::Collection>(top->page)) {
        push(route);
        return;
    }
    // From one collection to another: the stack does not grow.
    m_section.routes.back() = route;
    m_forwardRoutes.clear();
    m_laterSections.clear();
    forgetAbove(depth() - 1); // the pages below are still there, and tell their titles only once
    Q_EMIT replaced(depth());
    Q_EMIT stackChanged();
    Q_EMIT titleChanged();
}

void Router::openDepartment(const QString& id)
{
    push(ShopRoute{ShopRoute::Category{.id = id}});
}

void Router::openSearch(const QString& query)
{
    push(ShopRoute{ShopRoute::Search{.query = query}});
}

void Router::openFromStorePage(const QString& link)
{
    const LinkResolver::Target target = m_services.resolver.resolve(link);
    const auto* const external = std::get_if<LinkResolver::External>(&target);
    if (!external || !m_services.storePages.mayLoad(external->url)) {
        open(link);
        return;
    }
    openStorePage(external->url.toString(QUrl::RemoveScheme | QUrl::RemoveAuthority | QUrl::FullyEncoded), {});
}

void Router::openStorePage(const QString& path, const QString& title)
{
    push(StorePageRoute{StorePageRoute::Page{.path = path, .title = title}});
}

void Router::push(const Route& route)
{
    m_section.routes.push_back(route);
    m_forwardRoutes.clear();
    m_laterSections.clear();
    forgetAbove(depth() - 1);
    Q_EMIT pushed(depth());
    Q_EMIT stackChanged();
    Q_EMIT titleChanged();
}

void Router::select(SidebarItem item)
{
    if (item == m_section.selection) {
        goToSectionHome();
        return;
    }
    m_earlierSections.push_back(state());
    m_laterSections.clear();
    m_forwardRoutes.clear();
    show({.section = {.selection = item, .routes = {}}});
}

void Router::selectItem(int item)
{
    if (item >= 0 && item < static_cast<int>(sidebarEntries.size()))
        select(static_cast<SidebarItem>(item));
}

void Router::restore(const TabState& state)
{
    m_forwardRoutes.clear();
    m_earlierSections.clear();
    m_laterSections.clear();
    setPinned(state.isPinned);
    show(state);
}

void Router::show(const TabState& state)
{
    m_section = state.section;
    m_lastSelectionChange = m_services.clock.now();
    m_pageTitles.clear();
    m_scrollPositions.clear();
    for (int i = 0; i <= depth(); ++i) {
        if (const QString title = state.titles.value(i); !title.isEmpty())
            m_pageTitles.insert(i, title);
        if (const double offset = state.scrollOffsets.value(i); offset > 0)
            m_scrollPositions.insert(i, offset);
    }
    Q_EMIT reset();
    Q_EMIT selectionChanged();
    Q_EMIT stackChanged();
    Q_EMIT titleChanged();
}

void Router::back()
{
    if (depth() > 0) {
        popTo(m_section.routes.size() - 1);
        return;
    }
    if (m_earlierSections.empty())
        return;
    TabState later = state();
    // What was popped in this section can be brought back when the shopper returns to it.
    later.section.routes.assign(std::make_move_iterator(m_forwardRoutes.rbegin()),
                                std::make_move_iterator(m_forwardRoutes.rend()));
    m_forwardRoutes.clear();
    m_laterSections.push_back(std::move(later));
    const TabState earlier = std::move(m_earlierSections.back());
    m_earlierSections.pop_back();
    show(earlier);
}

void Router::forward()
{
    if (!m_forwardRoutes.empty()) {
        m_section.routes.push_back(std::move(m_forwardRoutes.back()));
        m_forwardRoutes.pop_back();
        Q_EMIT pushed(depth());
        Q_EMIT stackChanged();
        Q_EMIT titleChanged();
        return;
    }
    if (m_laterSections.empty())
        return;
    m_earlierSections.push_back(state());
    TabState later = std::move(m_laterSections.back());
    m_laterSections.pop_back();
    m_forwardRoutes.assign(std::make_move_iterator(later.section.routes.rbegin()),
                           std::make_move_iterator(later.section.routes.rend()));
    later.section.routes.clear();
    show(later);
}

void Router::backTo(int depth)
{
    if (depth >= 0)
        popTo(static_cast<std::size_t>(depth));
}

void Router::goToSectionHome()
{
    popTo(0);
}

void Router::popTo(std::size_t count)
{
    if (m_section.routes.size() <= count)
        return;
    while (m_section.routes.size() > count) {
        m_forwardRoutes.push_back(std::move(m_section.routes.back()));
        m_section.routes.pop_back();
    }
    forgetAbove(depth());
    Q_EMIT popped(depth());
    Q_EMIT stackChanged();
    Q_EMIT titleChanged();
}

void Router::forgetAbove(int depth)
{
    const auto isAbove = [depth](const auto& entry) {
        return entry.key() > depth;
    };
    m_pageTitles.removeIf(isAbove);
    m_scrollPositions.removeIf(isAbove);
}

TabState Router::state() const
{
    TabState state{.isPinned = m_isPinned, .section = m_section};
    for (int i = 0; i <= depth(); ++i) {
        state.titles.append(m_pageTitles.value(i));
        state.scrollOffsets.append(m_scrollPositions.value(i));
    }
    return state;
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

void Router::setPageTitle(int depth, const QString& title)
{
    if (depth < 0 || depth > this->depth() || m_pageTitles.value(depth) == title)
        return;
    m_pageTitles.insert(depth, title);
    Q_EMIT titleChanged();
}

void Router::setScrollPosition(int depth, double position)
{
    if (depth >= 0 && depth <= this->depth())
        m_scrollPositions.insert(depth, position);
}

double Router::scrollPosition(int depth) const
{
    return m_scrollPositions.value(depth);
}

} // namespace loom
