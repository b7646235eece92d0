import QtQml
import Loomstreet.Components
import Loomstreet.Model

// What can be done with a tab.
Menu {
    id: menu

    required property WindowSession session
    required property int index

    MenuItem {
        objectName: "newTabToTheRight"
        text: qsTranslate("Loomstreet", "New Tab to the Right")
        onTriggered: menu.session.newTabToTheRight(menu.index)
    }
    MenuSeparator {}
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
