import QtQuick

// Keeps what is looked at in its place while the columns of a grid, or their width, change around it: the current
// piece while it is in view, else the first one that is.
Item {
    id: anchor

    required property var grid // a ProductGrid, which has one of these

    readonly property real cellHeight: grid.cellHeight
    readonly property int columns: grid.columns

    property int place: -1
    property real offset: 0 // of its row from the top of the view
    // Where it brought the grid itself, which is no other place.
    property real kept: 0

    function isInView(place: int): bool {
        const top = grid.rowY(place) - grid.contentY
        return place >= 0 && top > -cellHeight / 2 && top < grid.height - cellHeight / 2
    }
    function note(): void {
        // At the top it stays at the top.
        if (grid.contentY <= 0)
            place = -1
        else
            place = isInView(grid.currentIndex) ? grid.currentIndex : columns * Math.round(grid.contentY / cellHeight)
        offset = grid.rowY(place) - grid.contentY
        kept = NaN
    }
    function keep(): void {
        if (place < 0)
            return
        grid.scrollTo(grid.rowY(place) - offset)
        kept = grid.contentY
    }

    visible: false
    onColumnsChanged: keep()
    onCellHeightChanged: keep()

    Connections {
        target: anchor.grid
        // Later: in the middle of a change of columns nothing is where it belongs. A piece that becomes the current one
        // may change them itself.
        function onContentYChanged(): void { later.start() }
        function onCurrentIndexChanged(): void { anchor.note() }
    }
    Timer {
        id: later

        interval: 0
        onTriggered: if (anchor.grid.contentY !== anchor.kept) anchor.note()
    }
}
