pragma ComponentBehavior: Bound
import QtQuick
import Loomstreet.Components
import Loomstreet.Model
import Loomstreet.Theme

// The pieces looked at last, slid in over the page.
Panel {
    id: panel

    required property AppModel app
    required property WindowSession session

    readonly property Router router: session.selected
    readonly property KeptPiecesModel footprints: app.makeRecentlyViewed(panel)
    readonly property bool empty: app.recentlyViewed.count === 0

    function close(): void { session.isHistoryOpen = false }
    function look(): void { if (open) footprints.look(0, app.recentlyViewed.count - 1) }

    objectName: "footprintsPanel"
    title: qsTranslate("Loomstreet", "Footprints")
    open: session.isHistoryOpen
    onOpenChanged: look()
    onCloseAsked: close()
    Component.onCompleted: look()

    headerActions: [
        IconButton {
            objectName: "clearFootprints"
            visible: !panel.empty
            iconName: "trash"
            text: qsTranslate("Loomstreet", "Clear all")
            onClicked: panel.app.recentlyViewed.clear()
        },
        IconButton {
            objectName: "allFootprints"
            iconName: "expand"
            text: qsTranslate("Loomstreet", "Expand to a Full Page")
            onClicked: {
                panel.close()
                panel.router.openRecentlyViewed()
            }
        }
    ]

    Connections {
        target: panel.app.recentlyViewed
        function onChanged(): void { panel.look() }
    }
    Connections {
        target: panel.app.market
        function onRevisionChanged(): void { panel.look() }
    }

    ListView {
        id: list

        objectName: "footprints"
        anchors { fill: parent; leftMargin: Theme.space3 }
        visible: !panel.empty
        model: panel.footprints.pieces
        boundsBehavior: Flickable.StopAtBounds
        keyNavigationEnabled: true
        reuseItems: true
        ScrollBar.vertical: ScrollBar {}

        FocusFollower { flickable: list }

        Accessible.role: Accessible.List
        Accessible.name: panel.title

        delegate: FootprintRow {
            x: list.LayoutMirroring.enabled ? Theme.space3 : 0
            width: list.width - Theme.space3
            onOpened: mode => {
                panel.close()
                panel.router.openPiece(handle, item, mode)
            }
            onRemoveAsked: panel.app.recentlyViewed.remove(handle)
        }
        removeDisplaced: Transition {
            NumberAnimation { property: "y"; duration: Theme.durationHover }
        }
    }
    EmptyState {
        objectName: "noFootprints"
        anchors.fill: parent
        visible: panel.empty
        iconName: "footprints"
        backdrop: Theme.surface
        title: qsTranslate("Loomstreet", "No footprints yet")
        sentence: qsTranslate("Loomstreet", "The pieces you look at gather here, so that you find back to them.")

        PushButton {
            objectName: "newIn"
            text: qsTranslate("Loomstreet", "New In")
            onClicked: {
                panel.close()
                panel.router.selectItem(1)
            }
        }
    }

    footer: Item {
        width: parent.width
        height: drops.height + 2 * Theme.space2

        PushButton {
            id: drops

            objectName: "priceDrops"
            anchors { left: parent.left; right: parent.right; verticalCenter: parent.verticalCenter; leftMargin: Theme.space3; rightMargin: Theme.space3 }
            iconName: "chart.down"
            text: qsTranslate("Loomstreet", "Price drops")
            onClicked: {
                panel.close()
                panel.router.openPriceDrops()
            }
        }
    }
}
