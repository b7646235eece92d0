import QtQml
import Loomstreet.Components
import Loomstreet.Model

// What can be done with a tab.
Menu {
    id: menu

    required property WindowSession session
    required property int index
    property bool isPinned: false

    MenuItem {
        objectName: "newTabToTheRight"
        text: qsTranslate("Loomstreet", "New Tab to the Right")
        onTriggered: menu.session.newTabToTheRight(menu.index)
    }
    MenuItem {
        objectName: "pinTab"
        text: menu.isPinned ? qsTranslate("Loomstreet", "Unpin Tab") : qsTranslate("Loomstreet", "Pin Tab")
        shortcut: "Ctrl Alt P"
        onTriggered: menu.session.setTabPinned(menu.index, !menu.isPinned)
    }
    MenuItem {
        objectName: "tearOffTab"
        text: qsTranslate("Loomstreet", "Move Tab to New Window")
        shortcut: "Ctrl Shift N"
        enabled: menu.session.tabs.count > 1
        onTriggered: menu.session.tearOffTab(menu.index)
    }
    MenuSeparator {}
    MenuItem {
        objectName: "reopenTab"
        text: qsTranslate("Loomstreet", "Reopen Closed Tab")
        shortcut: "Ctrl Shift T"
        enabled: menu.visible && menu.session.canReopenTab()
        onTriggered: menu.session.reopenTab()
    }
    MenuItem {
        text: qsTranslate("Loomstreet", "Close Tab")
        shortcut: "Ctrl W"
        onTriggered: menu.session.closeTab(menu.index)
    }
    MenuItem {
        text: qsTranslate("Loomstreet", "Close Other Tabs")
        enabled: menu.session.tabs.count > 1
        onTriggered: menu.session.closeOtherTabs(menu.index)
    }
}
