pragma ComponentBehavior: Bound
import QtQuick
import Loomstreet.Components
import Loomstreet.Model
import Loomstreet.Theme

// The tabs of a window, which are also its title bar: where there is no tab, one can take hold of the window.
Rectangle {
    id: strip

    required property WindowSession session
    required property Window window
    property bool ownFrame: true
    property bool collapsed: false

    readonly property int start: collapsed ? Theme.layoutSidebarRail : Theme.layoutSidebarRegular
    // What the tabs may take; behind them the strip can be taken hold of.
    readonly property int room: width - start - newTab.width - (buttons.visible ? buttons.width + Theme.space1 : 0) - Theme.space6
    readonly property int pinnedWidth: 40
    readonly property int pinnedCount: session.pinnedCount
    readonly property int tabWidth: {
        const others = Math.max(1, session.tabs.count - pinnedCount)
        return Math.max(96, Math.min(196, Math.floor((room - pinnedCount * pinnedWidth) / others)))
    }
    readonly property int tabsWidth: pinnedCount * pinnedWidth + (session.tabs.count - pinnedCount) * tabWidth

    implicitHeight: Theme.layoutTabStrip
    color: Theme.frame

    MouseArea {
        anchors.fill: parent
        enabled: strip.ownFrame
        onPressed: strip.window.startSystemMove()
        onDoubleClicked: strip.window.visibility === Window.Maximized ? strip.window.showNormal() : strip.window.showMaximized()
    }
    TextLabel {
        id: wordmark

        anchors { left: parent.left; leftMargin: 20; verticalCenter: parent.verticalCenter }
        visible: !strip.collapsed
        text: "LOOMSTREET"
        type: Theme.type.wordmark
    }
    IconButton {
        id: toggle

        objectName: "sidebarToggle"
        anchors {
            right: parent.left
            rightMargin: strip.collapsed ? -(Theme.layoutSidebarRail + width) / 2 : -Theme.layoutSidebarRegular + Theme.spaceHalf
            verticalCenter: parent.verticalCenter
        }
        iconName: "sidebar"
        text: strip.session.isSidebarCollapsed ? qsTranslate("Loomstreet", "Expand Sidebar") : qsTranslate("Loomstreet", "Collapse Sidebar")
        shortcut: "Ctrl B"
        onClicked: strip.session.isSidebarCollapsed = !strip.session.isSidebarCollapsed
    }

    ListView {
        id: row

        objectName: "tabs"
        anchors {
            left: parent.left
            leftMargin: strip.start
            top: parent.top
            bottom: parent.bottom
        }
        width: Math.min(strip.tabsWidth, strip.room)
        orientation: ListView.Horizontal
        interactive: strip.tabsWidth > width
        boundsBehavior: Flickable.StopAtBounds
        keyNavigationEnabled: true
        clip: interactive
        currentIndex: strip.session.selectedIndex
        highlightMoveDuration: Theme.durationTab
        model: strip.session.tabs

        Accessible.role: Accessible.PageTabList
        Accessible.name: qsTranslate("Loomstreet", "Tabs")

        moveDisplaced: Transition {
            NumberAnimation { property: "x"; duration: Theme.durationTab }
        }

        // The selected tab may have been carried, or moved by a key, out of sight, or the strip may have become shorter.
        onWidthChanged: showing.restart()
        Component.onCompleted: showing.restart()

        Connections {
            target: strip.session
            function onSelectedChanged(): void { showing.restart() }
        }
        Timer {
            id: showing

            interval: 0
            onTriggered: row.positionViewAtIndex(strip.session.selectedIndex, ListView.Contain)
        }
        delegate: TabItem {
            width: pinned ? strip.pinnedWidth : strip.tabWidth
            height: row.height
            session: strip.session
            row: row
        }
    }
    // Tabs are taken hold of where one would flick them: the wheel brings those that are out of sight.
    WheelHandler {
        readonly property int sense: row.effectiveLayoutDirection === Qt.RightToLeft ? 1 : -1

        target: null
        enabled: row.interactive
        onWheel: event => {
            const by = sense * event.angleDelta.y
            row.contentX = Math.max(row.originX, Math.min(row.originX + row.contentWidth - row.width, row.contentX + by))
        }
    }
    IconButton {
        id: newTab

        objectName: "newTab"
        anchors { left: row.right; leftMargin: Theme.space1; verticalCenter: parent.verticalCenter }
        iconName: "plus"
        iconSize: 16
        text: qsTranslate("Loomstreet", "New Tab")
        shortcut: "Ctrl T"
        onClicked: strip.session.newTab()
    }
    WindowButtons {
        id: buttons

        anchors { right: parent.right; rightMargin: Theme.space1; verticalCenter: parent.verticalCenter }
        visible: strip.ownFrame
        window: strip.window
    }
}
