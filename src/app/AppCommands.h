#pragma once

#include "base/KeyedText.h"

#include <QObject>
#include <QVariant>

#include <array>
#include <functional>

namespace loom
{

class WindowSession;

namespace AppCommand
{
Q_NAMESPACE

enum class Id {
    NewTab,
    NewWindow,
    CloseTab,
    CloseOtherTabs,
    ReopenTab,
    PinTab,
    MoveTabLeft,
    MoveTabRight,
    MoveTabToNewWindow,
    PreviewInFullPage,
    PreviewInNewTab,
    ClosePreview,
    TakeScreenshot,
    Settings,
    Quit,
    Back,
    Forward,
    Reload,
    GoToSectionHome,
    NextTab,
    PreviousTab,
    Search,
    SearchByImage,
    ShoppingBag,
    Notifications,
    Footprints,
    Mira,
    ToggleSidebar,
    ToggleFullScreen,
    CustomerService,
    HelpCenter,
    Agreements,
    CheckForUpdates,
};
Q_ENUM_NS(Id)

enum class Menu { File, View, Go, Help };
Q_ENUM_NS(Menu)
} // namespace AppCommand

/// What a command is called, where it stands and which keys bring it. The first key is the one a menu shows.
struct AppCommandEntry {
    AppCommand::Id id;
    AppCommand::Menu menu;
    KeyedText title;
    std::array<const char*, 3> shortcuts{};
    const char* accessibilityId = nullptr;
};

/// The commands in the order of their menus.
inline constexpr std::array<AppCommandEntry, 33> appCommandEntries{{
    {AppCommand::Id::NewTab, AppCommand::Menu::File, {QT_TRANSLATE_NOOP("Loomstreet", "New Tab")}, {"Ctrl+T"}},
    {AppCommand::Id::NewWindow, AppCommand::Menu::File, {QT_TRANSLATE_NOOP("Loomstreet", "New Window")}, {"Ctrl+N"}},
    {AppCommand::Id::CloseTab, AppCommand::Menu::File, {QT_TRANSLATE_NOOP("Loomstreet", "Close Tab")}, {"Ctrl+W"}},
    {AppCommand::Id::CloseOtherTabs,
     AppCommand::Menu::File,
     {QT_TRANSLATE_NOOP("Loomstreet", "Close Other Tabs")},
     {"Ctrl+Alt+W"}},
    {AppCommand::Id::ReopenTab,
     AppCommand::Menu::File,
     {QT_TRANSLATE_NOOP("Loomstreet", "Reopen Closed Tab")},
     {"Ctrl+Shift+T"}},
    {AppCommand::Id::PinTab,
     AppCommand::Menu::File,
     {QT_TRANSLATE_NOOP("Loomstreet", "Pin or Unpin Tab")},
     {"Ctrl+Alt+P"}},
    {AppCommand::Id::MoveTabLeft,
     AppCommand::Menu::File,
     {QT_TRANSLATE_NOOP("Loomstreet", "Move Tab Back")},
     {"Ctrl+Shift+PgUp"}},
    {AppCommand::Id::MoveTabRight,
     AppCommand::Menu::File,
     {QT_TRANSLATE_NOOP("Loomstreet", "Move Tab Forward")},
     {"Ctrl+Shift+PgDown"}},
    {AppCommand::Id::MoveTabToNewWindow,
     AppCommand::Menu::File,
     {QT_TRANSLATE_NOOP("Loomstreet", "Move Tab to New Window")},
     {"Ctrl+Shift+N"}},
    {AppCommand::Id::PreviewInFullPage,
     AppCommand::Menu::File,
     {QT_TRANSLATE_NOOP("Loomstreet", "Open Side Panel Product in Full Page")},
     {"Ctrl+Shift+Return"}},
    {AppCommand::Id::PreviewInNewTab,
     AppCommand::Menu::File,
     {QT_TRANSLATE_NOOP("Loomstreet", "Open Side Panel Product in New Tab")},
     {"Ctrl+Shift+O"}},
    {AppCommand::Id::ClosePreview,
     AppCommand::Menu::File,
     {QT_TRANSLATE_NOOP("Loomstreet", "Close Side Panel")},
     {"Ctrl+Shift+W"}},
    {AppCommand::Id::TakeScreenshot,
     AppCommand::Menu::File,
     {QT_TRANSLATE_NOOP("Loomstreet", "Take a Screenshot")},
     {"Ctrl+Shift+S"}},
    {AppCommand::Id::Settings, AppCommand::Menu::File, {QT_TRANSLATE_NOOP("Loomstreet", "Settings")}, {"Ctrl+,"}},
    {AppCommand::Id::Quit, AppCommand::Menu::File, {QT_TRANSLATE_NOOP("Loomstreet", "Quit")}, {"Ctrl+Q"}},
    {AppCommand::Id::Reload,
     AppCommand::Menu::View,
     {QT_TRANSLATE_NOOP("Loomstreet", "Reload This Page")},
     {"Ctrl+R", "F5"}},
    {AppCommand::Id::ShoppingBag,
     AppCommand::Menu::View,
     {QT_TRANSLATE_NOOP("Loomstreet", "Shopping bag")},
     {"Ctrl+Shift+B"}},
    {AppCommand::Id::Notifications,
     AppCommand::Menu::View,
     {QT_TRANSLATE_NOOP("Loomstreet", "Notifications")},
     {"Ctrl+Shift+I"}},
    {AppCommand::Id::Footprints, AppCommand::Menu::View, {QT_TRANSLATE_NOOP("Loomstreet", "Footprints")}, {"Ctrl+H"}},
    {AppCommand::Id::Mira, AppCommand::Menu::View, {QT_TRANSLATE_NOOP("Loomstreet", "Mira")}, {"Ctrl+Shift+M"}},
    {AppCommand::Id::ToggleSidebar,
     AppCommand::Menu::View,
     {QT_TRANSLATE_NOOP("Loomstreet", "Collapse Sidebar")},
     {"Ctrl+B"}},
    {AppCommand::Id::ToggleFullScreen,
     AppCommand::Menu::View,
     {QT_TRANSLATE_NOOP("Loomstreet", "Full Screen")},
     {"F11"}},
    {AppCommand::Id::Back,
     AppCommand::Menu::Go,
     {QT_TRANSLATE_NOOP("Loomstreet", "Back")},
     {"Ctrl+[", "Alt+Left"},
     "nav.back"},
    {AppCommand::Id::Forward,
     AppCommand::Menu::Go,
     {QT_TRANSLATE_NOOP("Loomstreet", "Forward")},
     {"Ctrl+]", "Alt+Right"},
     "nav.forward"},
    {AppCommand::Id::GoToSectionHome,
     AppCommand::Menu::Go,
     {QT_TRANSLATE_NOOP("Loomstreet", "Go to Section Home")},
     {"Ctrl+Up"}},
    {AppCommand::Id::Search,
     AppCommand::Menu::Go,
     {QT_TRANSLATE_NOOP("Loomstreet", "Search")},
     {"Ctrl+K", "Ctrl+L", "Ctrl+F"}},
    {AppCommand::Id::SearchByImage,
     AppCommand::Menu::Go,
     {QT_TRANSLATE_NOOP("Loomstreet", "Search by Image…")},
     {"Ctrl+Shift+F"},
     "lens.menu"},
    {AppCommand::Id::NextTab, AppCommand::Menu::Go, {QT_TRANSLATE_NOOP("Loomstreet", "Next Tab")}, {"Ctrl+Tab"}},
    {AppCommand::Id::PreviousTab,
     AppCommand::Menu::Go,
     {QT_TRANSLATE_NOOP("Loomstreet", "Previous Tab")},
     {"Ctrl+Shift+Tab"}},
    {AppCommand::Id::CustomerService,
     AppCommand::Menu::Help,
     {QT_TRANSLATE_NOOP("Loomstreet", "Customer Service")},
     {"Shift+F1"}},
    {AppCommand::Id::HelpCenter,
     AppCommand::Menu::Help,
     {QT_TRANSLATE_NOOP("Loomstreet", "LOOMSTREET Help Center")},
     {"F1"}},
    {AppCommand::Id::Agreements, AppCommand::Menu::Help, {QT_TRANSLATE_NOOP("Loomstreet", "Agreements")}, {}},
    {AppCommand::Id::CheckForUpdates,
     AppCommand::Menu::Help,
     {QT_TRANSLATE_NOOP("Loomstreet", "Check for Updates…")},
     {}},
}};

/// What the commands need beyond the window they act on.
struct AppCommandActions {
    std::function<void()> openWindow;
    std::function<void()> openSettings;
    std::function<void()> quit;
    std::function<void()> checkForUpdates;
};

/// The commands of one window: each acts on its session and the selected tab. Main thread; owned by the window.
class AppCommands final : public QObject
{
    Q_OBJECT

public:
    AppCommands(WindowSession& session, AppCommandActions actions, QObject* parent = nullptr);

    /// The commands of a menu as {"id", "title", "shortcut", "shortcuts", "accessibilityId"}, in order.
    [[nodiscard]] Q_INVOKABLE QVariantList commands(loom::AppCommand::Menu menu) const;
    /// Those of every menu.
    [[nodiscard]] Q_INVOKABLE QVariantList allCommands() const;
    [[nodiscard]] Q_INVOKABLE bool isEnabled(loom::AppCommand::Id id) const;
    Q_INVOKABLE void perform(loom::AppCommand::Id id);

Q_SIGNALS:
    /// What isEnabled() answers may have changed.
    void availabilityChanged();

private:
    void watchSelectedTab();

    WindowSession& m_session;
    AppCommandActions m_actions;
    QMetaObject::Connection m_watched;
};

} // namespace loom
