import QtQuick

// The keys that move through a grid.
Item {
    id: keys

    required property var grid // a ProductGrid, which has one of these

    function press(event: var): void {
        const columns = grid.columns
        const current = grid.currentIndex
        const page = columns * Math.max(1, Math.floor(grid.height / grid.cellHeight))
        const forwards = LayoutMirroring.enabled ? Qt.Key_Left : Qt.Key_Right
        const column = current % columns
        let place = current
        switch (event.key) {
        case Qt.Key_Left:
        case Qt.Key_Right: place += event.key === forwards ? 1 : -1; break
        case Qt.Key_Up: place -= columns; break
        case Qt.Key_Down: place += columns; break
        case Qt.Key_PageUp: place = Math.max(column, place - page); break
        case Qt.Key_PageDown: place = Math.min(place + page, grid.count - 1); break
        case Qt.Key_Home: place = 0; break
        case Qt.Key_End: place = grid.count - 1; break
        default: return
        }
        // Below the last piece of a column there may be one in another.
        if (event.key === Qt.Key_Down && place >= grid.count && grid.rowY(current) < grid.rowY(grid.count - 1))
            place = grid.count - 1
        event.accepted = place >= 0 && place < grid.count && place !== current
        if (event.accepted)
            grid.select(place)
    }

    visible: false
}
