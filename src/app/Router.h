#pragma once

#include "app/PageEntry.h"
#include "app/WindowState.h"
#include "navigation/LinkOpener.h"
#include "navigation/LinkResolver.h"
#include "navigation/ProductPreview.h"

#include <QDateTime>
#include <QMap>
#include <QObject>
#include <QPointer>
#include <QUuid>

namespace loom
{

class Clock;
class WindowSession;
struct WindowServices;

/// How a product is to be opened.
enum class OpenMode { Automatic = 0, Page = 1, NewTab = 3 };

/// The navigation of one tab, and the one place where a link becomes a page. The window shows what this says; it
/// never changes the stack itself. Main thread; owned by the window session.
class Router final : public QObject, public LinkOpener
{
    Q_OBJECT
    Q_PROPERTY(QString tabID READ tabID CONSTANT)
    Q_PROPERTY(bool isPinned READ isPinned WRITE setPinned NOTIFY isPinnedChanged)
    Q_PROPERTY(int selection READ selectionIndex NOTIFY selectionChanged)
    Q_PROPERTY(int depth READ depth NOTIFY stackChanged)
    Q_PROPERTY(bool canGoBack READ canGoBack NOTIFY stackChanged)
    Q_PROPERTY(bool canGoForward READ canGoForward NOTIFY stackChanged)
    Q_PROPERTY(QString title READ title NOTIFY titleChanged)
    Q_PROPERTY(QString symbol READ symbol NOTIFY stackChanged)
    Q_PROPERTY(QStringList trail READ trail NOTIFY titleChanged)
    Q_PROPERTY(int reloadToken READ reloadToken NOTIFY reloadTokenChanged)
    Q_PROPERTY(int softReloadToken READ softReloadToken NOTIFY softReloadTokenChanged)

public:
    Router(const WindowServices& services, WindowSession* session, SidebarItem section, QObject* parent = nullptr);

    [[nodiscard]] const QUuid& id() const { return m_id; }
    [[nodiscard]] QString tabID() const { return m_id.toString(QUuid::WithoutBraces); }
    [[nodiscard]] bool isPinned() const { return m_isPinned; }
    void setPinned(bool isPinned);
    [[nodiscard]] SidebarItem selection() const { return m_section.selection; }
    /// The one video that may play in this tab now.
    [[nodiscard]] const std::optional<QUuid>& visibleReelID() const { return m_visibleReelID; }
    void setVisibleReelID(const std::optional<QUuid>& id) { m_visibleReelID = id; }
    /// Which tab of the cart's page is shown.
    [[nodiscard]] int cartTab() const { return m_cartTab; }
    void setCartTab(int tab) { m_cartTab = tab; }
    [[nodiscard]] const QDateTime& lastSelectionChange() const { return m_lastSelectionChange; }
    [[nodiscard]] const std::vector<Route>& routes() const { return m_section.routes; }
    /// Routes that "back" removed, the most recently removed last.
    [[nodiscard]] const std::vector<Route>& forwardRoutes() const { return m_forwardRoutes; }
    [[nodiscard]] const QMap<int, QString>& pageTitles() const { return m_pageTitles; }
    [[nodiscard]] int reloadToken() const { return m_reloadToken; }
    [[nodiscard]] int softReloadToken() const { return m_softReloadToken; }

    /// How many pages are pushed on the section's root.
    [[nodiscard]] int depth() const { return static_cast<int>(m_section.routes.size()); }
    [[nodiscard]] bool canGoBack() const { return depth() > 0 || !m_earlierSections.empty(); }
    [[nodiscard]] bool canGoForward() const { return !m_forwardRoutes.empty() || !m_laterSections.empty(); }
    /// The page at `depth`, 0 for the section's root.
    [[nodiscard]] Q_INVOKABLE loom::PageEntry page(int depth) const;
    /// The title of the page on top.
    [[nodiscard]] QString title() const { return titleAt(depth()); }
    [[nodiscard]] QString symbol() const { return page(depth()).symbol; }
    /// The titles from the section to the page on top, one for each depth; empty while a page has none.
    [[nodiscard]] QStringList trail() const;

    bool open(const std::optional<QString>& link) override;
    Q_INVOKABLE bool openLink(const QString& link) { return open(link); }
    void openProduct(const ProductPreview& request, OpenMode mode);
    /// For cards: `item` holds the card, if any.
    Q_INVOKABLE void openProductCard(const QString& handle, const QVariant& item);
    Q_INVOKABLE void openProductInNewTab(const QString& handle, const QVariant& item);
    Q_INVOKABLE void openCollection(const QString& handle, const QString& title = {});
    Q_INVOKABLE void openDepartment(const QString& id);
    Q_INVOKABLE void openSearch(const QString& query);
    /// A link in an embedded page of the store: what the application has a page for opens there, other pages of the
    /// store are pushed, the rest goes to the browser.
    Q_INVOKABLE void openFromStorePage(const QString& link);
    Q_INVOKABLE void openStorePage(const QString& path, const QString& title);
    void push(const Route& route);
    void select(SidebarItem item);
    Q_INVOKABLE void selectItem(int item);
    Q_INVOKABLE void back();
    Q_INVOKABLE void forward();
    /// Goes back to the page at `depth`.
    Q_INVOKABLE void backTo(int depth);
    /// Leaves only the root of the section.
    Q_INVOKABLE void goToSectionHome();

    /// Asks the page on top to discard what it shows and fetch again, or to refresh it in place.
    Q_INVOKABLE void reload();
    Q_INVOKABLE void softReload();
    /// A visible page's own way to reload: its method "reload" is called. The key takes it back.
    Q_INVOKABLE int addReloadHandler(QObject* page);
    Q_INVOKABLE void removeReloadHandler(int key) { m_reloadHandlers.remove(key); }

    /// A page at `depth` tells its title.
    Q_INVOKABLE void setPageTitle(int depth, const QString& title);

    /// What the tab shows; what one could go back or forward to is not part of it.
    [[nodiscard]] TabState state() const;
    /// Shows it again.
    void restore(const TabState& state);

    /// Where a page at `depth` is scrolled to, kept while the page itself is not.
    Q_INVOKABLE void setScrollPosition(int depth, double position);
    [[nodiscard]] Q_INVOKABLE double scrollPosition(int depth) const;

Q_SIGNALS:
    void isPinnedChanged();
    void selectionChanged();
    void stackChanged();
    void titleChanged();
    void reloadTokenChanged();
    void softReloadTokenChanged();
    /// What the page container has to do: entries above `depth` are gone, or one is there anew.
    void popped(int depth);
    void pushed(int depth);
    void replaced(int depth);
    void reset();

private:
    [[nodiscard]] int selectionIndex() const { return static_cast<int>(m_section.selection); }
    [[nodiscard]] QString titleAt(int depth) const;
    void show(const TabState& state);
    void popTo(std::size_t count);
    void forgetAbove(int depth);

    const WindowServices& m_services;
    QPointer<WindowSession> m_session;
    QUuid m_id;
    bool m_isPinned = false;
    std::optional<QUuid> m_visibleReelID;
    int m_cartTab = 0;
    SectionState m_section;
    QDateTime m_lastSelectionChange;
    std::vector<Route> m_forwardRoutes;
    std::vector<TabState> m_earlierSections; ///< as they were left, with their titles and places
    std::vector<TabState> m_laterSections;   ///< each with all pages that one could go forward to in it
    QMap<int, QString> m_pageTitles;
    QMap<int, double> m_scrollPositions;
    int m_reloadToken = 0;
    int m_softReloadToken = 0;
    QMap<int, QPointer<QObject>> m_reloadHandlers;
    int m_nextReloadKey = 0;
};

} // namespace loom
