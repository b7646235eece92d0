#pragma once

#include "app/History.h"
#include "app/NavigationPath.h"
#include "app/OpenMode.h"
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

/// The navigation of one tab, and the one place where a link becomes a page. The window shows what this says; it
/// never changes the stack itself. Main thread; owned by the window session.
class Router final : public QObject, public LinkOpener
{
    Q_OBJECT
    Q_PROPERTY(QString tabID READ tabID CONSTANT)
    Q_PROPERTY(bool isPinned READ isPinned WRITE setPinned NOTIFY isPinnedChanged)
    Q_PROPERTY(int selection READ selectionIndex NOTIFY selectionChanged)
    Q_PROPERTY(loom::NavigationPath* navigationPath READ navigationPath CONSTANT)
    Q_PROPERTY(int depth READ depth NOTIFY stackChanged)
    Q_PROPERTY(bool canGoBack READ canGoBack NOTIFY stackChanged)
    Q_PROPERTY(bool canGoForward READ canGoForward NOTIFY stackChanged)
    Q_PROPERTY(QString title READ title NOTIFY titleChanged)
    Q_PROPERTY(QString symbol READ symbol NOTIFY stackChanged)
    Q_PROPERTY(QStringList trail READ trail NOTIFY titleChanged)
    Q_PROPERTY(QVariant preview READ previewVariant NOTIFY previewChanged)
    Q_PROPERTY(double previewWidth READ previewWidth WRITE setPreviewWidth NOTIFY previewWidthChanged)
    Q_PROPERTY(int reloadToken READ reloadToken NOTIFY reloadTokenChanged)
    Q_PROPERTY(int softReloadToken READ softReloadToken NOTIFY softReloadTokenChanged)

public:
    Router(const WindowServices& services, WindowSession* session, SidebarItem section, QObject* parent = nullptr);

    ~Router() override;

    [[nodiscard]] const QUuid& id() const { return m_id; }
    [[nodiscard]] QString tabID() const { return m_id.toString(QUuid::WithoutBraces); }
    [[nodiscard]] bool isPinned() const { return m_isPinned; }
    void setPinned(bool isPinned);
    [[nodiscard]] SidebarItem selection() const { return m_history.currentPage().section; }
    /// The one video that may play in this tab now.
    [[nodiscard]] const std::optional<QUuid>& visibleReelID() const { return m_visibleReelID; }
    void setVisibleReelID(const std::optional<QUuid>& id) { m_visibleReelID = id; }
    /// Which tab of the cart's page is shown.
    [[nodiscard]] int cartTab() const { return m_cartTab; }
    void setCartTab(int tab) { m_cartTab = tab; }
    [[nodiscard]] const QDateTime& lastSelectionChange() const { return m_lastSelectionChange; }
    /// The pages pushed on the section, bottom first.
    [[nodiscard]] std::vector<Route> routes() const;
    /// Routes that "back" removed and "forward" brings again, the most recently removed last.
    [[nodiscard]] std::vector<Route> forwardRoutes() const;
    /// The titles that the pages of the stack told, by depth.
    [[nodiscard]] QMap<int, QString> pageTitles() const;
    /// The pages that the page container keeps.
    [[nodiscard]] NavigationPath* navigationPath() { return &m_navigationPath; }
    /// The product beside the page.
    [[nodiscard]] const std::optional<ProductPreview>& preview() const { return m_preview; }
    void setPreview(const std::optional<ProductPreview>& preview);
    Q_INVOKABLE void closePreview() { setPreview({}); }
    /// In points, between 420 and 640; remembered for the tabs that come.
    [[nodiscard]] double previewWidth() const { return m_previewWidth; }
    void setPreviewWidth(double width);
    static constexpr double leastPreviewWidth = 420;
    static constexpr double greatestPreviewWidth = 640;
    [[nodiscard]] int reloadToken() const { return m_reloadToken; }
    [[nodiscard]] int softReloadToken() const { return m_softReloadToken; }

    /// How many pages are pushed on the section's root.
    [[nodiscard]] int depth() const { return m_history.depth(); }
    [[nodiscard]] bool canGoBack() const { return m_history.current() > 0; }
    [[nodiscard]] bool canGoForward() const { return m_history.current() + 1 < m_history.pages().size(); }
    /// The page at `depth`, 0 for the section's root.
    [[nodiscard]] Q_INVOKABLE loom::PageEntry page(int depth) const;
    /// The title of the page on top.
    [[nodiscard]] QString title() const { return titleAt(m_history.current()); }
    [[nodiscard]] QString symbol() const { return page(depth()).symbol; }
    /// The titles from the section to the page on top, one for each depth; empty while a page has none.
    [[nodiscard]] QStringList trail() const;

    bool open(const std::optional<QString>& link) override;
    Q_INVOKABLE bool openLink(const QString& link) { return open(link); }
    /// A link of a notification, which may name a page of the window by its path alone.
    Q_INVOKABLE bool openNotice(const QString& link);
    void openProduct(const ProductPreview& request, OpenMode mode);
    /// For cards: `item` holds the card, if any.
    Q_INVOKABLE void openPiece(const QString& handle, const QVariant& item,
                               loom::OpenModes::OpenMode mode = loom::OpenMode::Automatic);
    /// Makes the product beside the page a page of its own.
    Q_INVOKABLE void expandPreview();
    /// In front, whatever keys are held: they may be those of the command.
    void openPreviewInNewTab();
    Q_INVOKABLE void openCollection(const QString& handle, const QString& title = {});
    Q_INVOKABLE void openDepartment(const QString& id);
    Q_INVOKABLE void openSearch(const QString& query);
    /// Where a picture is given to search by.
    Q_INVOKABLE void openImageSearch() { push(LensRoute{LensRoute::Start{}}); }
    Q_INVOKABLE void openRail(const QString& kind, const QString& key, const QString& title);
    Q_INVOKABLE void openWishlist();
    Q_INVOKABLE void openMira() { select(SidebarItem::Mira); }
    Q_INVOKABLE void openNotifications() { select(SidebarItem::Notifications); }
    Q_INVOKABLE void openAccount() { select(SidebarItem::Account); }
    Q_INVOKABLE void openProfile() { push(AccountRoute{AccountRoute::Profile{}}); }
    Q_INVOKABLE void openAlerts() { push(AccountRoute{AccountRoute::Alerts{}}); }
    Q_INVOKABLE void openMembership() { push(AccountRoute{AccountRoute::Membership{}}); }
    Q_INVOKABLE void openCoupons() { push(AccountRoute{AccountRoute::Coupons{}}); }
    Q_INVOKABLE void openOrders() { select(SidebarItem::Orders); }
    Q_INVOKABLE void openOrder(const QString& id) { push(OrdersRoute{OrdersRoute::Order{.id = id}}); }
    /// `carrier` may be empty.
    Q_INVOKABLE void openPackage(const QString& number, const QString& carrier);
    Q_INVOKABLE void openTracking() { push(OrdersRoute{OrdersRoute::Tracking{}}); }
    Q_INVOKABLE void openReturns() { push(OrdersRoute{OrdersRoute::Returns{}}); }
    Q_INVOKABLE void openRecentlyViewed();
    Q_INVOKABLE void openPriceDrops();
    Q_INVOKABLE void openCompare(const QStringList& handles);
    /// A page that compares now compares these.
    Q_INVOKABLE void setCompared(int pageID, const QStringList& handles);
    /// A link in an embedded page of the store: what the application has a page for opens there, other pages of the
    /// store are pushed, the rest goes to the browser.
    Q_INVOKABLE void openFromStorePage(const QString& link);
    Q_INVOKABLE void openStorePage(const QString& path, const QString& title);
    /// One of the shopper's tools, by the key the store knows it by; `title` as the page before called it.
    Q_INVOKABLE void openTool(const QString& key, const QString& title);
    void push(const Route& route);
    void select(SidebarItem item);
    Q_INVOKABLE void selectItem(int item);
    Q_INVOKABLE void back();
    Q_INVOKABLE void forward();
    /// The titles of the pages that "back" leads to, or "forward", the nearest first; as many as a menu holds.
    [[nodiscard]] Q_INVOKABLE QStringList backTitles() const;
    [[nodiscard]] Q_INVOKABLE QStringList forwardTitles() const;
    /// Moves by so many pages: back where `pages` is less than 0.
    Q_INVOKABLE void go(int pages);
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

    /// The store may have switched features off or on: pages give their places up for the notice that says so, and
    /// come back to them.
    void resolveAgain();
    /// The windows speak another language now.
    void retranslate();

    /// A page tells its title.
    Q_INVOKABLE void setPageTitle(int pageID, const QString& title);

    /// What the tab shows; what one could go back or forward to is not part of it.
    [[nodiscard]] TabState state() const;
    /// Shows it again.
    void restore(const TabState& state);

    /// Where a page is scrolled to, in points, kept while the page itself is not.
    Q_INVOKABLE void setScrollPosition(int pageID, double position);
    [[nodiscard]] Q_INVOKABLE double scrollPosition(int pageID) const;

Q_SIGNALS:
    void isPinnedChanged();
    void selectionChanged();
    void stackChanged();
    void titleChanged();
    void reloadTokenChanged();
    void softReloadTokenChanged();
    void previewChanged();
    void previewWidthChanged();
    void scrollPositionChanged();
    /// Another page is on top, or the same one anew: it takes the focus.
    void topChanged();

private:
    [[nodiscard]] int selectionIndex() const { return static_cast<int>(selection()); }
    [[nodiscard]] PageEntry entryOf(const History::Page& page) const;
    [[nodiscard]] PageEntry entryAt(std::size_t index) const { return entryOf(m_history.pages()[index]); }
    [[nodiscard]] QString titleAt(std::size_t index) const;
    [[nodiscard]] QVariant previewVariant() const { return m_preview ? QVariant::fromValue(*m_preview) : QVariant(); }
    [[nodiscard]] bool isSplitPreviewAvailable() const;
    /// Hands the history to the page container and tells what changed since `before`.
    void apply(SidebarItem before);

    const WindowServices& m_services;
    QPointer<WindowSession> m_session;
    QUuid m_id;
    bool m_isPinned = false;
    std::optional<QUuid> m_visibleReelID;
    int m_cartTab = 0;
    QDateTime m_lastSelectionChange;
    History m_history;
    NavigationPath m_navigationPath;
    bool m_isApplying = false; ///< what pages tell while they come and go is nobody's doing
    std::optional<ProductPreview> m_preview;
    double m_previewWidth;
    int m_reloadToken = 0;
    int m_softReloadToken = 0;
    QMap<int, QPointer<QObject>> m_reloadHandlers;
    int m_nextReloadKey = 0;
};

} // namespace loom
