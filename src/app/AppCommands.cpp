#include "app/AppCommands.h"

#include "app/WindowSession.h"

namespace loom
{

namespace
{

QVariantMap describe(const AppCommandEntry& entry)
{
    QStringList shortcuts;
    for (const char* const shortcut : entry.shortcuts) {
        if (shortcut)
            shortcuts.append(QString::fromLatin1(shortcut));
    }
    return {{QStringLiteral("id"), static_cast<int>(entry.id)},
            {QStringLiteral("title"), entry.title.translated()},
            {QStringLiteral("shortcut"), shortcuts.value(0)},
            {QStringLiteral("shortcuts"), shortcuts},
            {QStringLiteral("accessibilityId"), QString::fromLatin1(entry.accessibilityId)}};
}

} // namespace

AppCommands::AppCommands(WindowSession& session, AppCommandActions actions, QObject* parent)
    : QObject(parent)
    , m_session(session)
    , m_actions(std::move(actions))
{
    connect(&m_session, &WindowSession::selectedChanged, this, &AppCommands::watchSelectedTab);
    connect(m_session.tabs(), &TabsModel::countChanged, this, &AppCommands::availabilityChanged);
    connect(&m_session, &WindowSession::canReopenTabChanged, this, &AppCommands::availabilityChanged);
    connect(&m_session, &WindowSession::previewShownChanged, this, &AppCommands::availabilityChanged);
    watchSelectedTab();
}

void AppCommands::watchSelectedTab()
{
    disconnect(m_watched);
    m_watched = connect(m_session.selected(), &Router::stackChanged, this, &AppCommands::availabilityChanged);
    Q_EMIT availabilityChanged();
}

QVariantList AppCommands::commands(AppCommand::Menu menu) const
{
    QVariantList list;
    for (const AppCommandEntry& entry : appCommandEntries) {
        if (entry.menu == menu)
            list.append(describe(entry));
    }
    return list;
}

QVariantList AppCommands::allCommands() const
{
    QVariantList list;
    for (const AppCommandEntry& entry : appCommandEntries)
        list.append(describe(entry));
    return list;
}

bool AppCommands::isEnabled(AppCommand::Id id) const
{
    const Router* const tab = m_session.selected();
    switch (id) {
    case AppCommand::Id::Back:
        return tab && tab->canGoBack();
    case AppCommand::Id::Forward:
        return tab && tab->canGoForward();
    case AppCommand::Id::GoToSectionHome:
        return tab && tab->depth() > 0;
    case AppCommand::Id::ReopenTab:
        return m_session.canReopenTab();
    case AppCommand::Id::PreviewInFullPage:
    case AppCommand::Id::PreviewInNewTab:
    case AppCommand::Id::ClosePreview:
        return m_session.isPreviewShown();
    case AppCommand::Id::CloseOtherTabs:
    case AppCommand::Id::MoveTabLeft:
    case AppCommand::Id::MoveTabRight:
    case AppCommand::Id::MoveTabToNewWindow:
    case AppCommand::Id::NextTab:
    case AppCommand::Id::PreviousTab:
        return m_session.tabs()->count() > 1;
    default:
        return true;
    }
}

void AppCommands::perform(AppCommand::Id id)
{
    Router* const tab = m_session.selected();
    if (!isEnabled(id) || !tab)
        return;
    switch (id) {
    case AppCommand::Id::NewTab:
        m_session.newTab();
        break;
    case AppCommand::Id::NewWindow:
        m_actions.openWindow();
        break;
    case AppCommand::Id::CloseTab:
        m_session.closeTab(m_session.selectedIndex());
        break;
    case AppCommand::Id::CloseOtherTabs:
        m_session.closeOtherTabs(m_session.selectedIndex());
        break;
    case AppCommand::Id::ReopenTab:
        m_session.reopenTab();
        break;
    case AppCommand::Id::PinTab:
        m_session.setTabPinned(m_session.selectedIndex(), !tab->isPinned());
        break;
    case AppCommand::Id::MoveTabLeft:
        m_session.moveTab(m_session.selectedIndex(), m_session.selectedIndex() - 1);
        break;
    case AppCommand::Id::MoveTabRight:
        m_session.moveTab(m_session.selectedIndex(), m_session.selectedIndex() + 1);
        break;
    case AppCommand::Id::MoveTabToNewWindow:
        m_session.tearOffTab(m_session.selectedIndex());
        break;
    case AppCommand::Id::PreviewInFullPage:
        tab->expandPreview();
        break;
    case AppCommand::Id::PreviewInNewTab:
        tab->openPreviewInNewTab();
        break;
    case AppCommand::Id::ClosePreview:
        tab->closePreview();
        break;
    case AppCommand::Id::TakeScreenshot:
        Q_EMIT m_session.screenshotRequested();
        break;
    case AppCommand::Id::Settings:
        m_actions.openSettings();
        break;
    case AppCommand::Id::Quit:
        m_actions.quit();
        break;
    case AppCommand::Id::Back:
        tab->back();
        break;
    case AppCommand::Id::Forward:
        tab->forward();
        break;
    case AppCommand::Id::Reload:
        tab->reload();
        break;
    case AppCommand::Id::GoToSectionHome:
        tab->goToSectionHome();
        break;
    case AppCommand::Id::NextTab:
        m_session.selectNextTab();
        break;
    case AppCommand::Id::PreviousTab:
        m_session.selectPreviousTab();
        break;
    case AppCommand::Id::Search:
        m_session.setPendingSearchFocus(true);
        break;
    case AppCommand::Id::SearchByImage:
        tab->openImageSearch();
        break;
    case AppCommand::Id::ShoppingBag:
        m_session.setCartOpen(!m_session.isCartOpen());
        break;
    case AppCommand::Id::Notifications:
        m_session.setInboxOpen(!m_session.isInboxOpen());
        break;
    case AppCommand::Id::Mira:
        m_session.setMiraDocked(!m_session.isMiraDocked());
        break;
    case AppCommand::Id::Footprints:
        m_session.setHistoryOpen(!m_session.isHistoryOpen());
        break;
    case AppCommand::Id::ToggleSidebar:
        m_session.setSidebarCollapsed(!m_session.isSidebarCollapsed());
        break;
    case AppCommand::Id::ToggleFullScreen:
        m_session.setWindowFullScreen(!m_session.isWindowFullScreen());
        break;
    case AppCommand::Id::CustomerService:
        m_session.setSupportOpen(true);
        break;
    case AppCommand::Id::HelpCenter:
        tab->openStorePage(QStringLiteral("/pages/help-center"),
                           QCoreApplication::translate("Loomstreet", "LOOMSTREET Help Center"));
        break;
    case AppCommand::Id::Agreements:
        tab->openStorePage(QStringLiteral("/pages/agreements"),
                           QCoreApplication::translate("Loomstreet", "Agreements"));
        break;
    case AppCommand::Id::CheckForUpdates:
        m_session.setUpdateOpen(true);
        m_actions.checkForUpdates();
        break;
    }
}

} // namespace loom
