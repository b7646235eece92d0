import QtQuick
import Loomstreet.Components

// Where a page is scrolled to. A page that is come back to is brought as far down as it reaches already, and further
// as more of it arrives, until it is where it was or the shopper does something else.
Item {
    id: place

    property Flickable flickable

    // Where it is to be again, -1 when nowhere but where it is.
    property real awaited: -1
    // From the top of all that scrolls.
    readonly property real scrollY: awaited >= 0 ? awaited
                                                 : flickable ? flickable.contentY - flickable.originY + flickable.topMargin : 0

    function goTo(y: real): void {
        awaited = y
        follow()
    }
    function follow(): void {
        if (awaited < 0)
            return
        const room = flickable.topMargin + flickable.contentHeight + flickable.bottomMargin - flickable.height
        const y = Math.max(0, Math.min(awaited, room)) - flickable.topMargin
        flickable.contentY = flickable.originY + y
        flickable.contentY = flickable.originY + y // a list that has jumped may begin elsewhere
        if (awaited <= room)
            awaited = -1
    }

    Timer {
        id: later

        interval: 0
        onTriggered: place.follow()
    }
    // A list tells of its height in the middle of laying itself out, which is no time to move it.
    Connections {
        target: place.flickable
        enabled: place.awaited >= 0
        function onContentHeightChanged(): void { later.restart() }
        function onHeightChanged(): void { later.restart() }
        function onTopMarginChanged(): void { later.restart() }
        function onMovementStarted(): void { place.awaited = -1 }
    }
    Connections {
        target: InputMode
        enabled: place.awaited >= 0
        function onActed(): void { place.awaited = -1 }
    }
}
