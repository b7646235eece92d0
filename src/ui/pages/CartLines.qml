pragma ComponentBehavior: Bound
import QtQuick
import Loomstreet.Components
import Loomstreet.Model
import Loomstreet.Theme

// The lines of the cart, below what there is to say about them.
Item {
    id: lines

    property CartModel cart
    property color backdrop: Theme.surface
    // All lines stand below each other, and what holds them scrolls.
    property bool unrolled: false
    readonly property real fullHeight: notices.height + list.contentHeight

    signal pieceOpened(string handle)

    function lookAtAdded(): void {
        const added = cart.addedRow
        if (added >= 0 && added !== lookedAt)
            looking.start()
        lookedAt = added
    }
    property int lookedAt: -1

    onVisibleChanged: if (visible) looking.start()
    Component.onCompleted: looking.start()

    Column {
        id: notices

        width: parent.width

        TextLabel {
            objectName: "itemCount"
            width: parent.width
            topPadding: Theme.space1 + evenPadding - type.leading
            text: lines.cart.itemCountText
            type: Theme.type.control
            font.weight: Font.Normal
            color: Theme.muted
        }
    }
    ListView {
        id: list

        objectName: "cartLines"
        // As wide as leaves the prices free of the scroll bar.
        anchors { left: parent.left; right: parent.right; rightMargin: -Theme.space2; top: notices.bottom; bottom: parent.bottom }
        interactive: !lines.unrolled
        model: lines.cart
        clip: true
        boundsBehavior: Flickable.StopAtBounds
        reuseItems: true
        keyNavigationEnabled: true
        ScrollBar.vertical: ScrollBar {}

        Accessible.role: Accessible.List
        Accessible.name: lines.cart.itemCountText

        delegate: CartLineRow {
            x: list.LayoutMirroring.enabled ? Theme.space2 : 0
            width: list.width - Theme.space2
            cart: lines.cart
            backdrop: lines.backdrop
            onOpened: lines.pieceOpened(handle)
        }

        FocusFollower { flickable: list }

        // What was added a moment ago is looked at.
        Timer {
            id: looking

            interval: 0
            onTriggered: if (lines.cart.addedRow >= 0) list.positionViewAtIndex(lines.cart.addedRow, ListView.Contain)
        }
        Connections {
            target: lines.cart
            function onChanged(): void { lines.lookAtAdded() }
        }

        removeDisplaced: Transition {
            NumberAnimation { property: "y"; duration: Theme.durationHover }
        }
    }
}
