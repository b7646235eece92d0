import QtQuick

// Keeps what is looked at in its place while the columns of a grid change around it: the current card while it is in
// view, else the first one that is. It asks the grid where its cards are, which moves its origin as it likes.
Item {
    id: anchor

    required property GridView grid
    required property int columns

    property int index: -1
    property real offset: 0 // of its row from the top of the view
    property bool placing: false
    property int columnsBefore: columns

    // The grid is to lay out its rows now.
    signal layoutWanted()

    function isInView(item: Item): bool {
        const top = item === null ? -grid.cellHeight : item.y - grid.contentY
        return top > -grid.cellHeight / 2 && top < grid.height - grid.cellHeight / 2
    }
    function note(): void {
        if (placing || columns !== columnsBefore)
            return
        index = isInView(grid.currentItem) ? grid.currentIndex : grid.indexAt(grid.cellWidth / 2, grid.contentY + grid.cellHeight / 2)
        const item = grid.itemAtIndex(index)
        // At the top it stays at the top.
        if (item === null || grid.contentY <= grid.originY)
            index = -1
        else
            offset = item.y - grid.contentY
    }

    function place(): void {
        if (index >= 0) {
            layoutWanted()
            grid.positionViewAtIndex(index, GridView.Beginning)
            grid.contentY = Math.max(grid.originY - grid.topMargin, grid.contentY - offset)
        }
        columnsBefore = columns
        placing = false
        note()
    }

    visible: false
    onColumnsChanged: placing = true

    // Once the grid has laid out its rows anew.
    Timer {
        id: later

        interval: 0
        onTriggered: {
            // A grid that is hidden does not know its rows.
            if (anchor.placing && anchor.grid.visible)
                anchor.place()
        }
    }
    Connections {
        target: anchor.grid
        function onContentHeightChanged(): void {
            if (anchor.placing)
                later.restart()
        }
        function onVisibleChanged(): void {
            if (anchor.placing)
                later.restart()
        }
        function onContentYChanged(): void { anchor.note() }
        function onCurrentIndexChanged(): void { anchor.note() }
    }
}
