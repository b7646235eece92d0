import QtQuick
import Loomstreet.Components
import Loomstreet.Theme

// Scrolls what it stands in to what the Tab key leads to. Focus that comes in another way scrolls nothing: a page that
// is come back to stays where it was.
Item {
    id: follower

    required property Flickable flickable

    function holds(item: Item): bool {
        for (let around = item?.parent ?? null; around !== null; around = around.parent) {
            if (around === flickable.contentItem)
                return true
        }
        return false
    }
    function follow(): void {
        const item = Window.activeFocusItem
        if (!holds(item))
            return
        const top = item.mapToItem(flickable.contentItem, 0, 0).y - Theme.space3
        const bottom = top + item.height + 2 * Theme.space3
        const lowest = flickable.originY + flickable.contentHeight + flickable.bottomMargin - flickable.height
        if (top < flickable.contentY || bottom - top > flickable.height)
            flickable.contentY = Math.max(flickable.originY - flickable.topMargin, Math.min(top, lowest))
        else if (bottom > flickable.contentY + flickable.height)
            flickable.contentY = Math.min(bottom - flickable.height, lowest)
    }

    Connections {
        target: InputMode
        function onTabPressed(): void { later.start() }
    }
    // The key is pressed first, and moves the focus then.
    Timer {
        id: later

        interval: 0
        onTriggered: follower.follow()
    }
}
