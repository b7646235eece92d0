import QtQuick
import QtQuick.Templates as T
import Loomstreet.Components
import Loomstreet.Theme

// The messages of a conversation, the latest first in the model and lowest on the screen. Whoever is at the latest
// stays there and sees what arrives from its beginning; whoever reads further up is moved by nothing.
ListView {
    id: list

    // What stands below the latest message and scrolls with it.
    property Item end: null
    property string name // for assistive tools

    // The reader is at the latest.
    property bool follows: true
    // Messages that arrived below what the reader sees.
    property int unseen: 0

    readonly property real lowest: originY + contentHeight + bottomMargin - height
    readonly property real highest: Math.min(lowest, originY - topMargin)
    readonly property bool atLatest: isAtLatest()

    property int arrived: 0 // at the front, since the last layout
    property bool settling: false // the place is being kept, not left
    property real heightBefore: 0
    readonly property bool scrolled: moving || bar.pressed
    // A message in sight, and how far below the upper edge it begins.
    property Item held: null
    property real heldBelow: 0

    // Asked where the place has just changed and nothing that follows from it has yet.
    function isAtLatest(): bool { return originY + contentHeight + bottomMargin - height - contentY < Theme.space3 }
    function toLatest(): void {
        follows = true
        unseen = 0
        keep()
    }
    // By the keyboard. All that was never in sight is reached by its number: how long it is is only guessed.
    function scrollBy(distance: real): void {
        if (distance === Infinity) {
            toLatest()
            return
        }
        if (distance === -Infinity)
            positionViewAtEnd()
        contentY = Math.max(highest, Math.min(contentY + distance, lowest))
        follows = isAtLatest()
        hold()
    }

    // A message has left the view, and its item shows another one from now on.
    function letGo(item: Item): void {
        if (held === item)
            held = null
        if (item.activeFocus)
            forceActiveFocus()
    }
    function hold(): void {
        held = itemAt(width / 2, contentY + height / 2) ?? itemAt(width / 2, contentY + Theme.space2)
        heldBelow = held ? held.y - contentY : 0
    }
    // After a layout everything is where it was for the reader, unless they follow what arrives.
    function keep(): void {
        if (scrolled)
            return
        settling = true
        forceLayout()
        if (!follows)
            unseen += arrived
        if (follows) {
            positionViewAtBeginning()
            const first = arrived > 0 ? itemAtIndex(arrived - 1) : null
            if (first && first.y - Theme.space2 < contentY)
                contentY = first.y - Theme.space2
            follows = isAtLatest()
        } else if (held) {
            contentY = Math.max(highest, Math.min(held.y - heldBelow, lowest))
        }
        arrived = 0
        settling = false
        hold()
    }

    objectName: "chatList"
    verticalLayoutDirection: ListView.BottomToTop
    boundsBehavior: Flickable.StopAtBounds
    currentIndex: -1
    highlightFollowsCurrentItem: false
    keyNavigationEnabled: false
    reuseItems: true
    cacheBuffer: 160 // what the Tab key leads to next is there
    clip: true
    activeFocusOnTab: true
    // Whether its length is known yet or not, the latest is at the same place.
    header: Item {
        implicitHeight: list.end ? list.end.height : 0 // qmllint disable unqualified
    }

    onContentYChanged: {
        // What a layout or another height does to it is no wish of the reader.
        if (settling || height !== heightBefore || (later.running && !scrolled))
            return
        follows = isAtLatest()
        hold()
    }
    onHeightChanged: {
        heightBefore = height
        later.restart()
    }
    onFollowsChanged: if (follows) unseen = 0
    // How far it reaches is not known before what arrived has been laid out.
    onCountChanged: follows ? later.restart() : keep()
    onContentHeightChanged: if (!settling) later.restart()
    Component.onCompleted: later.restart()

    Keys.onPressed: event => {
        const steps = { [Qt.Key_Up]: -Theme.space6, [Qt.Key_Down]: Theme.space6, [Qt.Key_PageUp]: -0.9 * height,
                        [Qt.Key_PageDown]: 0.9 * height, [Qt.Key_Home]: -Infinity, [Qt.Key_End]: Infinity }
        const step = steps[event.key]
        event.accepted = step !== undefined && (event.modifiers & (Qt.ControlModifier | Qt.AltModifier | Qt.ShiftModifier)) === 0
        if (event.accepted)
            scrollBy(step)
    }

    T.ScrollBar.vertical: ScrollBar { id: bar }

    Accessible.role: Accessible.List
    Accessible.name: name

    Connections {
        target: list.model
        function onRowsInserted(parent: var, first: int, last: int): void {
            if (first === 0)
                list.arrived += last - first + 1
            later.restart()
        }
        function onModelReset(): void {
            list.arrived = 0
            list.follows = true
            later.restart()
        }
    }
    // It tells of its height in the middle of laying itself out, which is no time to move it.
    Timer {
        id: later

        interval: 0
        onTriggered: list.keep()
    }
    Binding {
        when: list.end !== null && list.headerItem !== null
        target: list.end
        property: "parent"
        value: list.headerItem
    }
    FocusFollower { flickable: list }
}
