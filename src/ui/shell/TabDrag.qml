import QtQuick
import Loomstreet.Model

// Carries a tab along its row, past others, and out of it: let go below the strip, it gets a window of its own.
DragHandler {
    id: drag

    required property Item tab
    required property int index
    required property WindowSession session
    required property ListView row

    // How far below the strip a tab is torn off.
    readonly property int tearDistance: 48
    readonly property bool isTearing: active && session.tabs.count > 1 && Math.abs(activeTranslation.y) > tearDistance
    // Where the tab was taken, and how far it now lies from its place in the row.
    property real takenAt: 0
    readonly property real offset: active && !isTearing ? takenAt + activeTranslation.x - tab.x : 0
    property bool tears: false

    target: null
    acceptedButtons: Qt.LeftButton
    dragThreshold: 8

    onActiveChanged: {
        if (active) {
            takenAt = tab.x
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
        if (isTearing)
            return
        const middle = takenAt + activeTranslation.x + tab.width / 2
        const over = row.indexAt(Math.max(0, Math.min(row.contentWidth - 1, middle)), 1)
        if (over >= 0 && over !== index)
            session.moveTab(index, over)
    }
}
