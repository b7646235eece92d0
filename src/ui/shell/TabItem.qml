import QtQuick
import Loomstreet.Components
import Loomstreet.Model
import Loomstreet.Theme

// One tab: the page it shows, and the way to close it.
Pressable {
    id: tab

    required property Router router
    required property int index
    property WindowSession session
    property ListView row

    readonly property bool pinned: router?.isPinned ?? false
    readonly property bool selected: session.selectedIndex === index
    readonly property bool roomy: width >= 120

    objectName: "tab" + index
    // In the background nothing loads before it is first shown.
    text: router?.title || (selected ? qsTranslate("Loomstreet", "Loading") : qsTranslate("Loomstreet", "Untitled page"))
    leftPadding: Theme.space1_5
    rightPadding: Theme.spaceHalf
    topPadding: Theme.layoutTabStrip - 34
    onClicked: session.selectTab(index)

    // While it is carried it lies over the others.
    z: drag.active ? 1 : 0
    opacity: drag.isTearing ? 0.6 : 1
    transform: Translate { x: drag.offset }

    Keys.onDeletePressed: session.closeTab(index)
    Keys.onMenuPressed: menu.popup()

    Accessible.role: Accessible.PageTab
    Accessible.selected: selected

    TabDrag {
        id: drag

        tab: tab
        index: tab.index
        session: tab.session
        row: tab.row
    }
    MouseArea {
        anchors.fill: parent
        acceptedButtons: Qt.MiddleButton | Qt.RightButton
        onClicked: mouse => {
            if (mouse.button === Qt.MiddleButton)
                tab.session.closeTab(tab.index)
            else
                menu.popup()
        }
    }
    contentItem: Item {
        Icon {
            id: symbol

            anchors { left: parent.left; verticalCenter: parent.verticalCenter }
            name: tab.router?.symbol ?? ""
            size: 16
            color: tab.selected ? Theme.ink : Theme.muted
        }
        TextLabel {
            visible: !tab.pinned
            anchors { left: symbol.right; leftMargin: Theme.space1; right: close.visible ? close.left : parent.right; rightMargin: Theme.spaceHalf; verticalCenter: parent.verticalCenter }
            text: tab.text
            type: Theme.type.label
            color: tab.selected ? Theme.ink : Theme.muted
            Accessible.ignored: true
        }
        IconButton {
            id: close

            objectName: "close"
            anchors { right: parent.right; verticalCenter: parent.verticalCenter }
            visible: !tab.pinned && (tab.selected || tab.roomy)
            extent: 28
            iconName: "xmark"
            iconSize: 16
            color: Theme.muted
            text: qsTranslate("Loomstreet", "Close %1").arg(tab.text)
            focusPolicy: Qt.NoFocus
            showsToolTip: false
            onClicked: tab.session.closeTab(tab.index)
        }
    }
    background: Item {
        Rectangle {
            anchors { fill: parent; topMargin: Theme.layoutTabStrip - 34; bottomMargin: -Theme.radiusPanel }
            radius: Theme.radiusPanel
            color: tab.selected ? Theme.paper : tab.hovered ? Theme.hover : "transparent"
            border { width: tab.selected && Theme.dark ? Theme.strokeHairline : 0; color: Theme.hairline }
            visible: tab.selected || tab.hovered
        }
        Hairline {
            anchors { right: parent.right; verticalCenter: parent.verticalCenter; verticalCenterOffset: 3 }
            height: Theme.space2
            visible: !tab.selected && tab.index + 1 !== tab.session.selectedIndex && tab.index + 1 < tab.session.tabs.count
        }
        FocusRing {
            target: tab
            anchors { fill: parent; margins: 4; topMargin: Theme.layoutTabStrip - 32 }
        }
    }
    HoverToolTip {
        control: tab
        text: tab.roomy ? "" : tab.text
    }
    // Made when it is first asked for: most tabs never need it.
    Loader {
        id: menu

        readonly property var made: item

        function popup(): void {
            if (status === Loader.Null)
                setSource("TabMenu.qml", { session: tab.session, index: Qt.binding(() => tab.index), isPinned: Qt.binding(() => tab.pinned) })
            made.popup()
        }
    }
}
