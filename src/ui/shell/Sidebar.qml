pragma ComponentBehavior: Bound
import QtQuick
import Loomstreet.Components
import Loomstreet.Model
import Loomstreet.Theme

// The destinations of a tab: a column of words, or in little room a rail of icons.
Rectangle {
    id: sidebar

    required property AppModel app
    required property WindowSession session
    property bool rail: false

    implicitWidth: rail ? Theme.layoutSidebarRail : Theme.layoutSidebarRegular
    color: Theme.frame

    ListView {
        id: list

        objectName: "sidebar"
        anchors.fill: parent
        topMargin: Theme.space1
        bottomMargin: Theme.space2
        boundsBehavior: Flickable.StopAtBounds
        clip: true
        activeFocusOnTab: true
        keyNavigationEnabled: true
        currentIndex: sidebar.session.selected ? sidebar.session.selected.selection : 0
        highlightMoveDuration: 0
        model: SidebarModel {}
        ScrollBar.vertical: ScrollBar { visible: list.contentHeight > list.height && (pointer.hovered || list.moving) }

        HoverHandler { id: pointer }

        Accessible.role: Accessible.List
        Accessible.name: qsTranslate("Loomstreet", "Sections")

        delegate: SidebarRow {
            width: list.width
            rail: sidebar.rail
            focus: ListView.isCurrentItem
            count: rawValue === "cart" ? sidebar.app.cart.itemCount : rawValue === "wishlist" ? sidebar.app.wishlist.count
                   : rawValue === "notifications" ? sidebar.app.badge.count : 0
            countText: rawValue === "notifications" ? sidebar.app.badge.text : count
            selected: sidebar.session.selected ? sidebar.session.selected.selection === index : false
            onChosen: sidebar.session.selected.selectItem(index)
        }
    }
}
