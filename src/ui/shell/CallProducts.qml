pragma ComponentBehavior: Bound
import QtQuick
import Loomstreet.Components
import Loomstreet.Theme

// The pieces that she shows, the latest first; two in sight, and more where there is room.
Item {
    id: products

    property var cards: [] // values of the stylist's
    property real mostHeight: 2 * rowHeight

    readonly property real rowHeight: Math.max(72, Theme.type.overline.line + Theme.type.label.line + Theme.space2)

    signal opened(var card, int mode)

    visible: cards.length > 0
    // Part of one more shows that there is more.
    height: {
        if (!visible)
            return 0
        const all = cards.length * rowHeight
        const room = Math.max(rowHeight, Math.min(mostHeight, 2.5 * rowHeight))
        return Math.ceil(all <= room ? all : room)
    }

    ListView {
        id: list

        objectName: "callProducts"
        // The bar is beside the rows.
        anchors { left: parent.left; right: parent.right; top: parent.top; bottom: parent.bottom; rightMargin: -Theme.space2 }
        model: products.cards
        boundsBehavior: Flickable.StopAtBounds
        interactive: contentHeight > height
        currentIndex: -1
        clip: true

        ScrollBar.vertical: ScrollBar {}

        Accessible.role: Accessible.List
        Accessible.name: qsTranslate("Loomstreet", "Pieces")

        delegate: CallProduct {
            required property var modelData

            anchors.left: parent?.left
            width: products.width
            height: products.rowHeight
            card: modelData
            onOpened: mode => products.opened(modelData, mode)
        }

        FocusFollower { flickable: list }
    }
    Hairline {
        anchors { left: parent.left; right: parent.right; bottom: parent.bottom }
    }
}
