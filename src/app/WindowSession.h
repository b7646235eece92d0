#pragma once

#include "app/TabsModel.h"
#include "app/WindowSeed.h"
#include "navigation/CheckoutRequest.h"
#include "navigation/LightboxRequest.h"

#include <QPointer>
#include <QSize>

#include <algorithm>

namespace loom
{

enum class TabActivation { Activate, Background };

/// One open window: its tabs, its panels, and what lies over its page. Main thread; owned by the application model.
class WindowSession final : public QObject
{
    Q_OBJECT
    Q_PROPERTY(loom::TabsModel* tabs READ tabs CONSTANT)
    Q_PROPERTY(loom::Router* selected READ selected NOTIFY selectedChanged)
    Q_PROPERTY(int pinnedCount READ pinnedCount NOTIFY stateChanged)
    Q_PROPERTY(int selectedIndex READ selectedIndex NOTIFY selectedChanged)
    Q_PROPERTY(bool isCartOpen READ isCartOpen WRITE setCartOpen NOTIFY panelsChanged)
    Q_PROPERTY(bool isHistoryOpen READ isHistoryOpen WRITE setHistoryOpen NOTIFY panelsChanged)
    Q_PROPERTY(bool isInboxOpen READ isInboxOpen WRITE setInboxOpen NOTIFY panelsChanged)
    Q_PROPERTY(bool isSupportOpen READ isSupportOpen WRITE setSupportOpen NOTIFY panelsChanged)
    Q_PROPERTY(bool isUpdateOpen READ isUpdateOpen WRITE setUpdateOpen NOTIFY panelsChanged)
    Q_PROPERTY(bool isSignInPresented READ isSignInPresented WRITE setSignInPresented NOTIFY panelsChanged)
    Q_PROPERTY(bool isMiraDocked READ isMiraDocked WRITE setMiraDocked NOTIFY panelsChanged)
    Q_PROPERTY(QVariant lightbox READ lightboxVariant NOTIFY lightboxChanged)
    Q_PROPERTY(
        bool pendingSearchFocus READ pendingSearchFocus WRITE setPendingSearchFocus NOTIFY pendingSearchFocusChanged)
    Q_PROPERTY(bool isWindowFullScreen READ isWindowFullScreen WRITE setWindowFullScreen NOTIFY layoutChanged)
    Q_PROPERTY(bool isSidebarCollapsed READ isSidebarCollapsed WRITE setSidebarCollapsed NOTIFY layoutChanged)
    Q_PROPERTY(double windowWidth READ windowWidth WRITE setWindowWidth NOTIFY layoutChanged)
    Q_PROPERTY(double contentWidth READ contentWidth NOTIFY layoutChanged)
    Q_PROPERTY(bool isPreviewShown READ isPreviewShown NOTIFY previewShownChanged)
    Q_PROPERTY(int lastWidth READ lastWidth NOTIFY windowSizeChanged)
    Q_PROPERTY(int lastHeight READ lastHeight NOTIFY windowSizeChanged)
    Q_PROPERTY(bool isWindowMaximized READ isWindowMaximized WRITE setWindowMaximized NOTIFY windowSizeChanged)
    Q_PROPERTY(QObject* window READ window WRITE setWindow NOTIFY windowChanged)

public:
    /// What a product beside the page takes at least, the page included, in points.
    static constexpr double leastWidthForPreview = 1160;
    /// What the sidebar takes in its full width; pages are measured without it, whether it is there or not.
    static constexpr double sidebarWidth = 216;

    WindowSession(const WindowServices& services, const WindowSeed& seed, QObject* parent = nullptr);
    /// As it was saved; `state` has a tab at least.
    [[nodiscard]] static std::unique_ptr<WindowSession> restored(const WindowServices& services,
                                                                 const WindowState& state);
    ~WindowSession() override;

    [[nodiscard]] const QUuid& id() const { return m_id; }
    [[nodiscard]] TabsModel* tabs() { return &m_tabs; }
    [[nodiscard]] const QUuid& selectedID() const { return m_selectedID; }
    /// The tabs by when they were last selected, the selected one first.
    [[nodiscard]] const QList<QUuid>& recency() const { return m_recency; }
    [[nodiscard]] Router* selected() const { return m_tabs.at(selectedIndex()); }
    [[nodiscard]] int selectedIndex() const { return m_tabs.indexOf(m_selectedID); }

    /// What the window shows.
    [[nodiscard]] WindowState state() const;

    /// Opens a tab behind the last one.
    Router* openTab(SidebarItem section, TabActivation activation);
    /// The store may have switched features off or on.
    void resolvePagesAgain();
    /// The windows speak another language now.
    void retranslate();
    /// Opens a link from outside: a page in a tab of its own; what is no page, such as the cart's panel, needs none.
    void openLink(const QString& link);
    Q_INVOKABLE void newTab();
    /// Opens a tab directly to the right of the one with this number, or of the pinned ones if that is one of them.
    Q_INVOKABLE void newTabToTheRight(int index);
    Q_INVOKABLE void selectTab(int index);
    /// The most recently used tab comes to the front. Closing the last one asks for the window to be closed.
    Q_INVOKABLE void closeTab(int index);
    /// Pinned ones too.
    Q_INVOKABLE void closeOtherTabs(int index);
    /// Opens the tab again that was closed last in any window.
    Q_INVOKABLE void reopenTab();
    [[nodiscard]] Q_INVOKABLE bool canReopenTab() const;
    [[nodiscard]] int pinnedCount() const;
    /// Pinned tabs stand before the others; a tab moves among its own kind.
    Q_INVOKABLE void moveTab(int from, int to);
    Q_INVOKABLE void setTabPinned(int index, bool isPinned);
    /// A window of its own for a tab; nothing happens to the only one.
    Q_INVOKABLE void tearOffTab(int index);
    Q_INVOKABLE void selectNextTab();
    Q_INVOKABLE void selectPreviousTab();

    [[nodiscard]] bool isCartOpen() const { return m_panels.cart; }
    void setCartOpen(bool isOpen) { setPanel(m_panels.cart, isOpen); }
    [[nodiscard]] bool isHistoryOpen() const { return m_panels.history; }
    void setHistoryOpen(bool isOpen) { setPanel(m_panels.history, isOpen); }
    [[nodiscard]] bool isInboxOpen() const { return m_panels.inbox; }
    void setInboxOpen(bool isOpen) { setPanel(m_panels.inbox, isOpen); }
    [[nodiscard]] bool isSupportOpen() const { return m_panels.support; }
    void setSupportOpen(bool isOpen) { setPanel(m_panels.support, isOpen); }
    [[nodiscard]] bool isUpdateOpen() const { return m_panels.update; }
    void setUpdateOpen(bool isOpen) { setPanel(m_panels.update, isOpen); }
    [[nodiscard]] bool isSignInPresented() const { return m_isSignInPresented; }
    void setSignInPresented(bool isPresented);
    [[nodiscard]] bool isMiraDocked() const { return m_isMiraDocked; }
    void setMiraDocked(bool isDocked);

    [[nodiscard]] const std::optional<CheckoutRequest>& pendingCheckout() const { return m_pendingCheckout; }
    void setPendingCheckout(const std::optional<CheckoutRequest>& request);
    /// The cart as a page instead of as a panel, the other way around, and neither.
    Q_INVOKABLE void expandCart();
    Q_INVOKABLE void dockCart();
    Q_INVOKABLE void leaveCart();
    /// Asks for the cart to be paid for.
    Q_INVOKABLE void checkOut(const QUrl& cartCheckoutURL);
    [[nodiscard]] const std::optional<LightboxRequest>& lightbox() const { return m_lightbox; }
    Q_INVOKABLE void openLightbox(const QStringList& images, int index, const QString& title);
    Q_INVOKABLE void closeLightbox();
    [[nodiscard]] bool pendingSearchFocus() const { return m_pendingSearchFocus; }
    void setPendingSearchFocus(bool isPending);

    /// An embedded page of the store comes to life; whichever else lives in this window ends.
    Q_INVOKABLE void claimWebPage(QObject* page) { Q_EMIT webPageClaimed(page); }

    [[nodiscard]] bool isWindowFullScreen() const { return m_isWindowFullScreen; }
    void setWindowFullScreen(bool isFullScreen);
    [[nodiscard]] bool isSidebarCollapsed() const { return m_isSidebarCollapsed; }
    void setSidebarCollapsed(bool isCollapsed);
    [[nodiscard]] double windowWidth() const { return m_windowWidth; }
    void setWindowWidth(double width);
    /// What there is for pages, in points.
    [[nodiscard]] double contentWidth() const { return std::max(0.0, m_windowWidth - sidebarWidth); }
    /// A product can be shown beside the page.
    [[nodiscard]] bool hasRoomForPreview() const { return !m_isMiraDocked && contentWidth() >= leastWidthForPreview; }
    /// There is a product beside the page, and room for it.
    [[nodiscard]] bool isPreviewShown() const;
    /// The window's size while it is neither maximised nor on the full screen, to come back to; none while unknown.
    [[nodiscard]] const QSize& windowSize() const { return m_windowSize; }
    void setWindowSize(const QSize& size);
    [[nodiscard]] int lastWidth() const { return m_windowSize.width(); }
    [[nodiscard]] int lastHeight() const { return m_windowSize.height(); }
    Q_INVOKABLE void keepSize(int width, int height) { setWindowSize(QSize(width, height)); }
    [[nodiscard]] bool isWindowMaximized() const { return m_isWindowMaximized; }
    void setWindowMaximized(bool isMaximized);
    [[nodiscard]] QObject* window() const { return m_window; }
    void setWindow(QObject* window);

Q_SIGNALS:
    void selectedChanged();
    void panelsChanged();
    void lightboxChanged();
    void pendingCheckoutChanged();
    void pendingSearchFocusChanged();
    void layoutChanged();
    void windowChanged();
    void windowSizeChanged();
    void previewShownChanged();
    void canReopenTabChanged();
    /// What state() tells is not what it was.
    void stateChanged();
    /// A tab is to have a window of its own.
    void tabTornOff(const loom::TabState& tab);
    void closeRequested();
    /// It is about to be gone, and still whole: whoever shows it lets go of it now.
    void ending();
    void screenshotRequested();
    void webPageClaimed(QObject* owner);

private:
    struct Panels {
        bool cart = false;
        bool history = false;
        bool inbox = false;
        bool support = false;
        bool update = false;

        bool operator==(const Panels&) const = default;
    };

    Router* insertTab(int index, SidebarItem section, TabActivation activation);
    void select(QUuid id);
    void setPanel(bool& panel, bool isOpen);
    enum class Closing { Remembered, Forgotten };
    void closeTab(int index, Closing closing);
    void dropTab(int index, Closing closing = Closing::Remembered);
    void watch(const Router& tab);
    [[nodiscard]] QVariant lightboxVariant() const;

    const WindowServices& m_services;
    QUuid m_id;
    TabsModel m_tabs;
    QUuid m_selectedID;
    QList<QUuid> m_recency;
    Panels m_panels;
    bool m_isSignInPresented = false;
    std::optional<CheckoutRequest> m_pendingCheckout;
    std::optional<LightboxRequest> m_lightbox;
    bool m_pendingSearchFocus = false;
    bool m_isMiraDocked = false;
    bool m_isWindowFullScreen = false;
    bool m_isSidebarCollapsed = false;
    QPointer<QObject> m_window;
    double m_windowWidth = 0;
    QSize m_windowSize;
    bool m_isWindowMaximized = false;
};

} // namespace loom
