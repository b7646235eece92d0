pragma ComponentBehavior: Bound
import QtQuick
import Loomstreet.Theme

// What stands in the places of a grid where cards are still to come.
Repeater {
    id: grounds

    required property var grid // a ProductGrid, which has one of these
    required property var pool // its model of cards
    required property var cards // what places them

    property real pictureHeight
    property int made: 0

    model: made

    Rectangle {
        required property int index

        readonly property int place: grounds.pool.complete ? -1 : grounds.grid.firstSeen + index

        x: place < 0 ? 0 : grounds.cards.columnX(place)
        y: grounds.grid.rowY(place)
        width: grounds.grid.cardWidth
        height: grounds.pictureHeight
        visible: place >= 0 && place <= Math.min(grounds.grid.lastSeen, grounds.grid.count - 1)
        radius: Theme.radiusPicture
        color: Theme.skeleton
    }
    readonly property Connections listening: Connections {
        target: grounds.pool
        function onCompleteChanged(): void {
            if (!grounds.pool.complete)
                grounds.made = Math.max(grounds.made, grounds.grid.lastSeen - grounds.grid.firstSeen + 1)
        }
    }
}
