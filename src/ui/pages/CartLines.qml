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

    signal pieceOpened(string handle)

    Column {
        id: notices

        width: parent.width

        TextLabel {
            objectName: "itemCount"
            width: parent.width
            topPadding: Theme.space1
            text: lines.cart.itemCountText
            type: Theme.type.control
            font.weight: Font.Normal
            color: Theme.muted
        }
        CartNotice {
            objectName: "cartError"
            width: parent.width
            sentence: lines.cart.errorText
            iconName: "warning"
            tone: Theme.danger
        }
    }
    ListView {
        id: list

        objectName: "cartLines"
        anchors { left: parent.left; right: parent.right; top: notices.bottom; bottom: parent.bottom }
        model: lines.cart
        clip: true
        boundsBehavior: Flickable.StopAtBounds
        reuseItems: true
        keyNavigationEnabled: true
        ScrollBar.vertical: ScrollBar {}

        Accessible.role: Accessible.List
        Accessible.name: lines.cart.itemCountText

        delegate: CartLineRow {
            width: list.width
            cart: lines.cart
            backdrop: lines.backdrop
            onOpened: lines.pieceOpened(handle)
        }

        FocusFollower { flickable: list }

        removeDisplaced: Transition {
            NumberAnimation { property: "y"; duration: Theme.durationHover }
        }
    }
}
