import QtQuick
import Loomstreet.Model

// Carries a tab along its row, past others, and out of it: let go below the strip, it gets a window of its own. Held at
// the end of a row that is longer than the strip, it goes on past those that are out of sight.
DragHandler {
    id: drag

    required property Item tab
    required property int index
    required property WindowSession session
    required property ListView row

    // How far below the strip a tab is torn off.
    readonly property int tearDistance: 48
    readonly property bool isTearing: active && session.tabs.count > 1 && Math.abs(activeTranslation.y) > tearDistance
    // Where in the strip the tab was taken, where it is carried to, and how far that lies from its place in the row.
    property real takenAt: 0
    readonly property real wanted: takenAt + activeTranslation.x
    readonly property real carriedTo: row.contentX + Math.max(0, Math.min(row.width - tab.width, wanted))
    readonly property real offset: active && !isTearing ? carriedTo - tab.x : 0
    property bool tears: false

    function moveOver(): void {
        const over = row.indexAt(carriedTo + tab.width / 2, 1)
        if (over >= 0 && over !== index)
            session.moveTab(index, over)
    }

    target: null
    acceptedButtons: Qt.LeftButton
    dragThreshold: 8

    onActiveChanged: {
        if (active) {
            takenAt = tab.x - row.contentX
            session.selectTab(index)
        } else if (tears) {
            tears = false
            session.tearOffTab(index)
        }
    }
    onActiveTranslationChanged: {
        if (!active)
            return
        tears = isTearing
        if (!isTearing)
            moveOver()
    }

    readonly property Timer further: Timer {
        interval: 160
        repeat: true
        running: drag.active && !drag.isTearing && drag.row.interactive && (drag.wanted < 0 || drag.wanted > drag.row.width - drag.tab.width)
        onTriggered: {
            const onwards = (drag.wanted < 0) === (drag.row.effectiveLayoutDirection === Qt.RightToLeft)
            drag.session.moveTab(drag.index, drag.index + (onwards ? 1 : -1))
        }
    }
}
